#include "wqspcfg/platform/store/ForkSafe.h"

#include <array>
#include <atomic>

#if !defined(_WIN32)
#include <pthread.h>
#endif

namespace wqspcfg {

namespace {

struct Locks
{
    std::array<std::mutex, static_cast<std::size_t>(ForkSafe::Count)> mutexes;
    std::atomic<const ForkHandler*> handler{nullptr};

    Locks()
    {
#if !defined(_WIN32)
        pthread_atfork(
            [] {
                Get().Lock();
                Call(&ForkHandler::before);
            },
            [] {
                Call(&ForkHandler::inParent);
                Get().Unlock();
                Call(&ForkHandler::unlocked);
            },
            [] {
                Call(&ForkHandler::inChild);
                Get().Unlock();
            });
#endif
    }

    void Lock()
    {
        for (auto& mutex : mutexes) {
            mutex.lock();
        }
    }
    void Unlock()
    {
        for (auto mutex = mutexes.rbegin(); mutex != mutexes.rend(); ++mutex) {
            mutex->unlock();
        }
    }

    static void Call(void (*ForkHandler::*step)())
    {
        if (const auto* handler = Get().handler.load(); handler != nullptr && handler->*step != nullptr) {
            (handler->*step)();
        }
    }

    static Locks& Get()
    {
        static auto* locks = new Locks; // used until the process ends, by static objects too
        return *locks;
    }
};

} // namespace

std::mutex& ForkSafeMutex(ForkSafe which)
{
    return Locks::Get().mutexes[static_cast<std::size_t>(which)];
}

void SetForkHandler(const ForkHandler& handler)
{
    Locks::Get().handler = new ForkHandler(handler); // used until the process ends
}

} // namespace wqspcfg
