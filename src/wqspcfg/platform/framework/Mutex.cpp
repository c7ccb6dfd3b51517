#include "wqspcfg/platform/framework/Mutex.h"

#include <chrono>

CMutex::CMutex(BOOL initiallyOwn)
{
    if (initiallyOwn) {
        Lock();
    }
}

BOOL CMutex::Lock(DWORD timeout)
{
    const std::thread::id self = std::this_thread::get_id();
    const auto available = [&] { return m_depth == 0 || m_owner == self; };
    std::unique_lock guard(m_guard);
    if (timeout == INFINITE) {
        m_released.wait(guard, available);
    } else if (!m_released.wait_for(guard, std::chrono::milliseconds(timeout), available)) {
        return FALSE;
    }
    m_owner = self;
    ++m_depth;
    return TRUE;
}

BOOL CMutex::Unlock()
{
    const std::lock_guard guard(m_guard);
    if (m_depth == 0 || m_owner != std::this_thread::get_id()) {
        return FALSE;
    }
    // Told under the guard: whoever gets the mutex next may destroy it.
    if (--m_depth == 0) {
        m_released.notify_one();
    }
    return TRUE;
}
