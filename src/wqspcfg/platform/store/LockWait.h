// How long a write waits for another one to end, and who is told of it.
#pragma once

#include "wqspcfg/platform/base/Export.h"

#include <chrono>
#include <functional>
#include <string>

namespace wqspcfg {

// A writer of an embedded store waits for the writer before it, in this or another process, for at most this time and
// then fails. 0 waits not at all. Without a call it is the environment variable WQSPCFG_LOCK_TIMEOUT, in seconds, else
// 60 seconds. For the whole process.
WQSPCFG_API void SetLockTimeout(std::chrono::milliseconds timeout);
WQSPCFG_API std::chrono::milliseconds LockTimeout();
// The time that a text stands for as the value of that variable; an empty one is the default. False, and nothing is
// changed, for what is no number of seconds from 0 to 1,000,000: the variable has no effect then.
WQSPCFG_API bool ParseLockTimeout(const char* text, std::chrono::milliseconds& timeout);

struct LockWait
{
    std::string address; // of the store
    long process = 0;    // that writes; 0 when it is not known, this process's own for another thread of it
};

// Called, once for each write, in the thread that has waited for a second. Null for none, which is the default. The
// handler does not use the store.
WQSPCFG_API void SetLockWaitHandler(std::function<void(const LockWait&)> handler);

// Tells the handler.
void NotifyLockWait(const LockWait& wait);

} // namespace wqspcfg
