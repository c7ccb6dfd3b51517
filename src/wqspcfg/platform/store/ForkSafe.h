// The locks of this library that a process may hold while another thread of it forks. Before the fork they are all
// taken, so that no thread is within them and the child finds them free.
#pragma once

#include <cstddef>
#include <mutex>

namespace wqspcfg {

// In the order in which one thread takes them.
enum class ForkSafe : std::size_t
{
    CurrentStore,
    KeyHandles,
    LockWaitHandler,
    Environments,
    Count,
};

std::mutex& ForkSafeMutex(ForkSafe which);

// What the child does first, with the locks held; one function for the process. Nothing on Windows, which has no fork.
void SetForkHandler(void (*inChild)());

} // namespace wqspcfg
