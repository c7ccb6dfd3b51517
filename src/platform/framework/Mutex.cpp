#include "platform/framework/Mutex.h"

#include <chrono>

CMutex::CMutex(BOOL initiallyOwn)
{
    if (initiallyOwn) {
        Lock();
    }
}

BOOL CMutex::Lock(DWORD timeout)
{
    if (timeout == INFINITE) {
        m_mutex.lock();
    } else if (!m_mutex.try_lock_for(std::chrono::milliseconds(timeout))) {
        return FALSE;
    }
    m_owner.store(std::this_thread::get_id(), std::memory_order_relaxed);
    ++m_depth;
    return TRUE;
}

BOOL CMutex::Unlock()
{
    // Only the owner can find its own id here, so no other thread's change can mislead this test.
    if (m_owner.load(std::memory_order_relaxed) != std::this_thread::get_id()) {
        return FALSE;
    }
    if (--m_depth == 0) {
        m_owner.store({}, std::memory_order_relaxed);
    }
    m_mutex.unlock();
    return TRUE;
}
