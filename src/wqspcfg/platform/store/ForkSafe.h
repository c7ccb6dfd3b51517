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
    ForkedStores,
    KeyHandles,
    LockWaitHandler,
    MemoryStates,
    LoadedObjects,
    CachedResults,
    ModuleDirectory,
    FileLogs,
    Environments,
    WrittenStores,
    Count,
};

std::mutex& ForkSafeMutex(ForkSafe which);

// Called with the locks held; one set of functions for the process. Nothing on Windows, which has no fork.
struct ForkHandler
{
    void (*before)() = nullptr; // the last step before the fork
    void (*inParent)() = nullptr;
    void (*inChild)() = nullptr;
    void (*unlocked)() = nullptr; // in the parent, once the locks are free
};
void SetForkHandler(const ForkHandler& handler);

} // namespace wqspcfg
