// What other processes, other users and careless programs do beside the store. None of it loses a write that was
// acknowledged, mixes two states or hangs.
#include "endurance/Scenario.h"
#include "wqspcfg/platform/store/Backup.h"
#include "wqspcfg/platform/store/Maintenance.h"

#include <atomic>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace wqspcfg::endurance {

namespace {

constexpr auto kLimit = std::chrono::seconds(120);
constexpr std::wstring_view kCounters = L"SOFTWARE\\Counters";

std::uint32_t ReadNumber(Session& session, std::wstring_view name)
{
    ValueView value;
    std::uint32_t number = 0;
    if (session.Query(session.Open(kCounters), name, value) == Outcome::Found && value.data.size() == sizeof number) {
        std::memcpy(&number, value.data.data(), sizeof number);
    }
    return number;
}

// Adds one to a number of the store. Whether that was acknowledged.
bool Increment(std::wstring_view name)
{
    ClearStoreError();
    WriteScope scope;
    const auto next = ReadNumber(*scope, name) + 1;
    const auto* bytes = reinterpret_cast<const std::byte*>(&next);
    scope->Set(scope->Open(kCounters), name, {ValueType::Dword, {bytes, sizeof next}});
    return scope.Commit();
}

std::uint32_t Count(std::wstring_view name)
{
    const ReadScope scope;
    return ReadNumber(*scope, name);
}

// Increments until `end`, and sends how often that was acknowledged.
std::string IncrementUntil(const std::string& directory, Clock::time_point end, bool mayFail, const Channel& channel)
{
    std::uint32_t done = 0;
    auto error = UseStore(directory);
    while (!error && Clock::now() < end) {
        if (Increment(L"shared")) {
            ++done;
        } else if (!mayFail) {
            error = LastStoreError();
        }
    }
    channel.Send(done);
    return error.message;
}

// What the children have sent, all in all; why one of them failed, or that the store has another number.
std::string Sum(const std::string& directory, std::vector<std::unique_ptr<Child>>& children, std::uint32_t& sum)
{
    sum = 0;
    for (auto& child : children) {
        if (auto why = child->Wait(kLimit); !why.empty()) {
            return why;
        }
        for (const auto number : child->Drain()) {
            sum += number;
        }
    }
    if (const auto error = UseStore(directory)) {
        return error.message;
    }
    const auto found = Count(L"shared");
    SetCurrentStore(nullptr);
    return found == sum ? "" : std::to_string(sum) + " were acknowledged, " + std::to_string(found) + " are there";
}

} // namespace

Result CompactScenario(const Plan& plan)
{
    const Scratch scratch;
    const auto directory = scratch / "store";
    if (auto why = MakeStoreInChild(directory, 1); !why.empty()) {
        return Failed(why);
    }
    const auto end = plan.End();
    std::vector<std::unique_ptr<Child>> writers;
    for (int i = 0; i < 2; ++i) {
        writers.push_back(std::make_unique<Child>(
            [&](const Channel& channel) { return IncrementUntil(directory, end, false, channel); }));
    }
    Child reader([&](const Channel&) {
        std::string why = UseStore(directory).message;
        while (why.empty() && Clock::now() < end) {
            why = ExpectGeneration(1, 1);
        }
        return why;
    });
    int compacted = 0;
    while (Clock::now() < end) {
        const auto why = InChild([&] {
            CompactCounts counts;
            Error error;
            return CompactStore("lmdb:" + directory, counts, error) ? std::string() : error.message;
        });
        if (!why.empty()) {
            return Failed("compacting: " + why);
        }
        ++compacted;
    }
    std::uint32_t sum = 0;
    if (auto why = Sum(directory, writers, sum); !why.empty()) {
        return Failed(why);
    }
    if (auto why = reader.Wait(kLimit); !why.empty()) {
        return Failed("the reader: " + why);
    }
    return {{}, "compacted " + std::to_string(compacted) + " times beside " + std::to_string(sum) + " writes", {}};
}

Result RemovedLockScenario(const Plan& plan)
{
    std::uint32_t all = 0;
    int rounds = 0;
    for (const auto end = plan.End(); rounds < 3 || Clock::now() < end; ++rounds) {
        const Scratch scratch;
        const auto directory = scratch / "store";
        if (auto why = MakeStoreInChild(directory, 1); !why.empty()) {
            return Failed(why);
        }
        constexpr auto kApart = std::chrono::milliseconds(100);
        const auto stop = Clock::now() + 4 * kApart;
        std::vector<std::unique_ptr<Child>> writers;
        for (int i = 0; i < 2; ++i) {
            writers.push_back(std::make_unique<Child>(
                [&](const Channel& channel) { return IncrementUntil(directory, stop, true, channel); }));
            std::this_thread::sleep_for(kApart);
            std::filesystem::remove(directory + "/lock.mdb");
        }
        std::uint32_t sum = 0;
        // One that was refused from its beginning has acknowledged nothing.
        for (auto& writer : writers) {
            (void)writer->Wait(kLimit);
            for (const auto number : writer->Drain()) {
                sum += number;
            }
        }
        if (const auto error = UseStore(directory)) {
            return Failed(error.message);
        }
        const auto found = Count(L"shared");
        SetCurrentStore(nullptr);
        if (found != sum) {
            return Failed(std::to_string(sum) + " were acknowledged, " + std::to_string(found) + " are there");
        }
        all += sum;
    }
    return {
        {}, "the lock file removed in " + std::to_string(rounds) + " rounds of " + std::to_string(all) + " writes", {}};
}

Result NoLockRightsScenario(const Plan& plan)
{
    if (geteuid() != 0) {
        return {{}, {}, "only the superuser can become another user"};
    }
    const Scratch scratch;
    const auto directory = scratch / "store";
    auto why = MakeStoreInChild(directory, 1);
    if (why.empty() &&
        (chmod(scratch.Path().c_str(), 0755) != 0 || chmod(directory.c_str(), 0755) != 0 ||
         chmod((directory + "/data.mdb").c_str(), 0644) != 0 || chmod((directory + "/lock.mdb").c_str(), 0600) != 0)) {
        why = std::strerror(errno);
    }
    if (!why.empty()) {
        return Failed(why);
    }
    const auto end = plan.End();
    Child writer([&](const Channel& channel) {
        auto error = UseStore(directory);
        Dispenser config;
        std::uint32_t generation = 1;
        while (!error && Clock::now() < end) {
            error = Save(config, ++generation);
        }
        channel.Send(generation);
        return error.message;
    });
    Child reader([&](const Channel& channel) {
        constexpr unsigned kNobody = 65534;
        if (setresgid(kNobody, kNobody, kNobody) != 0 || setresuid(kNobody, kNobody, kNobody) != 0) {
            return std::string(std::strerror(errno));
        }
        std::string failure = UseStore(directory).message;
        std::uint32_t loads = 0;
        while (failure.empty() && Clock::now() < end) {
            ClearStoreError();
            Dispenser config;
            std::uint32_t generation = 0;
            // An error is allowed, a mixture is not.
            if (!Load(config)) {
                failure = config.CheckGeneration(generation);
                ++loads;
            }
        }
        channel.Send(loads);
        return failure;
    });
    for (auto* child : {&writer, &reader}) {
        if (auto failure = child->Wait(kLimit); !failure.empty()) {
            return Failed(failure);
        }
    }
    const auto saves = writer.Drain();
    const auto loads = reader.Drain();
    return {{},
            std::to_string(loads.empty() ? 0 : loads.back()) + " loads without the lock file beside " +
                std::to_string(saves.empty() ? 0 : saves.back()) + " saves",
            {}};
}

Result ClosedFilesScenario(const Plan&)
{
    constexpr int kAll = 8;
    for (int closed = 1; closed < kAll; ++closed) {
        const Scratch scratch;
        const auto directory = scratch / "store";
        const auto why = InChild([&] {
            // The child's own reports go through other files.
            for (int fd = 0; fd < 3; ++fd) {
                if ((closed >> fd & 1) != 0) {
                    close(fd);
                }
            }
            auto failure = MakeStore(directory, 1);
            for (int fd = 0; fd < 3; ++fd) {
                (void)!write(fd, std::string(9000, ' ').data(), (closed >> fd & 1) != 0 ? 9000 : 0);
            }
            return failure.empty() ? ExpectGeneration(1, 1) : failure;
        });
        if (!why.empty()) {
            return Failed("without files " + std::to_string(closed) + ": " + why);
        }
        const auto later = InChild([&] {
            const auto error = UseStore(directory);
            return error ? error.message : ExpectGeneration(1, 1);
        });
        if (!later.empty()) {
            return Failed("after a process without files " + std::to_string(closed) + ": " + later);
        }
    }
    return {{}, std::to_string(kAll - 1) + " ways of missing standard files", {}};
}

Result ForkScenario(const Plan& plan)
{
    const Scratch scratch;
    const auto directory = scratch / "store";
    if (auto why = MakeStoreInChild(directory, 1); !why.empty()) {
        return Failed(why);
    }
    if (const auto error = UseStore(directory)) {
        return Failed(error.message);
    }
    std::atomic<bool> isDone{false};
    std::vector<std::thread> readers;
    for (int i = 0; i < 4; ++i) {
        readers.emplace_back([&isDone] {
            while (!isDone) {
                (void)Count(L"shared");
            }
        });
    }
    const auto end = plan.End();
    int forks = 0;
    std::string why;
    for (; why.empty() && (forks < 200 || Clock::now() < end); ++forks) {
        why = InChild([] { return Increment(L"shared") ? std::string() : LastStoreError().message; },
                      std::chrono::seconds(30));
    }
    isDone = true;
    for (auto& reader : readers) {
        reader.join();
    }
    const auto found = Count(L"shared");
    if (why.empty() && found != static_cast<std::uint32_t>(forks)) {
        why = std::to_string(forks) + " were acknowledged, " + std::to_string(found) + " are there";
    }
    return why.empty() ? Result{{}, std::to_string(forks) + " forks among four reading threads", {}}
                       : Failed("fork " + std::to_string(forks) + ": " + why);
}

} // namespace wqspcfg::endurance
