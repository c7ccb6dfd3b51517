#pragma once

#include "wqspcfg/platform/base/Export.h"
#include "wqspcfg/platform/base/WinTypes.h"

#include <condition_variable>
#include <mutex>
#include <thread>

// A mutex of this process that its owner may lock again; every lock needs its unlock.
class CMutex
{
  public:
    WQSPCFG_API explicit CMutex(BOOL initiallyOwn = FALSE);
    CMutex(const CMutex&) = delete;
    CMutex& operator=(const CMutex&) = delete;
    ~CMutex() = default;

    // FALSE when the mutex could not be had within `timeout` milliseconds.
    WQSPCFG_API BOOL Lock(DWORD timeout = INFINITE);
    // FALSE when the calling thread does not own the mutex.
    WQSPCFG_API BOOL Unlock();

  private:
    std::mutex m_guard; // of the members below, never held for long
    std::condition_variable m_released;
    std::thread::id m_owner;
    unsigned m_depth = 0; // how often the owner has locked
};

// Unlocks at the end of its scope what it has locked.
class CSingleLock
{
  public:
    explicit CSingleLock(CMutex* mutex, BOOL initialLock = FALSE) : m_mutex(mutex)
    {
        if (initialLock) {
            Lock();
        }
    }
    CSingleLock(const CSingleLock&) = delete;
    CSingleLock& operator=(const CSingleLock&) = delete;
    ~CSingleLock() { Unlock(); }

    // Locking what this object has locked already changes nothing.
    BOOL Lock(DWORD timeout = INFINITE)
    {
        m_locked = m_locked || m_mutex->Lock(timeout);
        return m_locked;
    }
    BOOL Unlock()
    {
        const bool unlocked = m_locked && m_mutex->Unlock();
        m_locked = false;
        return unlocked;
    }
    BOOL IsLocked() const noexcept { return m_locked; }

  private:
    CMutex* m_mutex;
    bool m_locked = false;
};
