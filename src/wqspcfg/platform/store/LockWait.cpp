#include "wqspcfg/platform/store/LockWait.h"

#include "wqspcfg/platform/store/ForkSafe.h"

#include <atomic>
#include <cstdlib>
#include <mutex>

namespace wqspcfg {

namespace {

constexpr std::chrono::milliseconds kDefaultTimeout = std::chrono::seconds(60);
constexpr double kMostSeconds = 1e6;

std::chrono::milliseconds TimeoutOfEnvironment()
{
    const auto* text = std::getenv("WQSPCFG_LOCK_TIMEOUT");
    std::chrono::milliseconds timeout = kDefaultTimeout;
    (void)(text != nullptr && ParseLockTimeout(text, timeout));
    return timeout;
}

std::atomic<std::chrono::milliseconds::rep>& Timeout()
{
    static std::atomic<std::chrono::milliseconds::rep> timeout{TimeoutOfEnvironment().count()};
    return timeout;
}

struct Handler
{
    std::mutex& mutex = ForkSafeMutex(ForkSafe::LockWaitHandler);
    std::function<void(const LockWait&)> call;

    static Handler& Get()
    {
        static auto* handler = new Handler; // used until the process ends
        return *handler;
    }
};

} // namespace

bool ParseLockTimeout(const char* text, std::chrono::milliseconds& timeout)
{
    if (*text == '\0') {
        timeout = kDefaultTimeout;
        return true;
    }
    char* end = nullptr;
    const auto seconds = std::strtod(text, &end);
    if (*end != '\0' || !(seconds >= 0 && seconds <= kMostSeconds)) {
        return false;
    }
    timeout = std::chrono::milliseconds(static_cast<long long>(seconds * 1000));
    return true;
}

void SetLockTimeout(std::chrono::milliseconds timeout)
{
    Timeout() = timeout.count();
}

std::chrono::milliseconds LockTimeout()
{
    return std::chrono::milliseconds(Timeout());
}

void SetLockWaitHandler(std::function<void(const LockWait&)> handler)
{
    const std::lock_guard lock(Handler::Get().mutex);
    Handler::Get().call = std::move(handler);
}

void NotifyLockWait(const LockWait& wait)
{
    std::function<void(const LockWait&)> call;
    {
        const std::lock_guard lock(Handler::Get().mutex);
        call = Handler::Get().call;
    }
    if (call) {
        call(wait);
    }
}

} // namespace wqspcfg
