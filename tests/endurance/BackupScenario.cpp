// Backups of a store that is being written, and backing up and restoring killed at random moments: a backup is one
// generation and whole, and a store holds what it held or what was restored.
#include "endurance/Scenario.h"
#include "wqspcfg/platform/store/Backup.h"

#include <thread>

namespace wqspcfg::endurance {

namespace {

// What is restored, in turn: one is much longer than the other.
constexpr std::uint32_t kGenerations[] = {10, 11};

std::string BackUp(const std::string& directory, const std::string& file)
{
    BackupCounts counts;
    Error error;
    return BackUpStore("lmdb:" + directory, file, counts, error) ? std::string() : error.message;
}

std::string Restore(const std::string& directory, const std::string& file)
{
    BackupCounts counts;
    std::string kept;
    Error error;
    return RestoreStore("lmdb:" + directory, file, counts, kept, error) ? std::string() : error.message;
}

std::string WriteUntil(const std::string& directory, Clock::time_point end, const Channel& channel)
{
    if (const auto error = UseStore(directory)) {
        return error.message;
    }
    Dispenser config;
    for (std::uint32_t generation = 2; Clock::now() < end; ++generation) {
        if (const auto error = Save(config, generation)) {
            return error.message;
        }
        channel.Send(generation);
    }
    return {};
}

} // namespace

Result BackupScenario(const Plan& plan)
{
    const Scratch scratch;
    const auto directory = scratch / "store";
    const auto other = scratch / "other";
    const auto file = scratch / "backup";
    std::mt19937_64 random(plan.seed);
    const auto pause = [&random](std::uint64_t most) {
        std::this_thread::sleep_for(std::chrono::microseconds(random() % most));
    };

    // Backing up beside a writer, now and then killed.
    if (auto why = MakeStoreInChild(directory, 1); !why.empty()) {
        return Failed(why);
    }
    auto half = plan;
    half.seconds /= 2;
    auto end = half.End();
    if (auto why = BackUp(directory, file); !why.empty()) {
        return Failed(why);
    }
    Child writer([&directory, end](const Channel& channel) { return WriteUntil(directory, end, channel); });
    std::uint32_t acknowledged = 1;
    std::uint32_t last = 1;
    int backups = 0;
    int killed = 0;
    while (Clock::now() < end) {
        for (const auto generation : writer.Drain()) {
            acknowledged = generation;
        }
        auto least = acknowledged;
        Child backing([&](const Channel&) { return BackUp(directory, file); });
        if (++backups % 2 == 0) {
            pause(4000);
            const bool hadEnded = !backing.Kill();
            if (hadEnded && !backing.Failure().empty()) {
                return Failed("a backup: " + backing.Failure());
            }
            killed += hadEnded ? 0 : 1;
            least = hadEnded ? least : last;
        } else if (auto why = backing.Wait(std::chrono::seconds(60)); !why.empty()) {
            return Failed("a backup: " + why);
        }
        const auto why = InChild([&] {
            if (auto failure = Restore(other, file); !failure.empty()) {
                return failure;
            }
            const auto error = UseStore(other);
            return error ? error.message : ExpectGeneration(least, ~0U);
        });
        if (!why.empty()) {
            return Failed("backup " + std::to_string(backups) + ": " + why);
        }
        last = least;
    }
    if (auto why = writer.Wait(std::chrono::seconds(60)); !why.empty()) {
        return Failed("the writer beside the backups: " + why);
    }

    // Restoring under readers, now and then killed.
    const std::string files[] = {scratch / "backup0", scratch / "backup1"};
    for (const auto i : {0U, 1U}) {
        const auto source = scratch / ("source" + std::to_string(i));
        auto why = MakeStoreInChild(source, kGenerations[i]);
        why = why.empty() ? BackUp(source, files[i]) : why;
        why = why.empty() ? Restore(directory, files[i]) : why;
        if (!why.empty()) {
            return Failed(why);
        }
    }
    const auto expectEither = [] {
        std::uint32_t found = 0;
        auto why = ExpectGeneration(0, ~0U, &found);
        return why.empty() && found != kGenerations[0] && found != kGenerations[1]
                   ? "generation " + std::to_string(found)
                   : why;
    };
    end = half.End();
    Child reader([&](const Channel&) {
        if (const auto error = UseStore(directory)) {
            return error.message;
        }
        while (Clock::now() < end) {
            if (auto why = expectEither(); !why.empty()) {
                return why;
            }
        }
        return std::string();
    });
    int restores = 0;
    int killedRestores = 0;
    if (const auto error = UseStore(directory)) {
        return Failed(error.message);
    }
    while (Clock::now() < end) {
        const auto which = static_cast<std::size_t>(++restores / 2 % 2);
        Child restoring([&](const Channel&) { return Restore(directory, files[which]); });
        std::string why;
        if (restores % 2 == 0) {
            pause(4000);
            const bool hadEnded = !restoring.Kill();
            killedRestores += hadEnded ? 0 : 1;
            why = hadEnded ? restoring.Failure() : why;
            why = why.empty() ? expectEither() : why;
        } else {
            why = restoring.Wait(std::chrono::seconds(60));
            why = why.empty() ? ExpectGeneration(kGenerations[which], kGenerations[which]) : why;
        }
        if (!why.empty()) {
            return Failed("restore " + std::to_string(restores) + ": " + why);
        }
    }
    if (auto why = reader.Wait(std::chrono::seconds(60)); !why.empty()) {
        return Failed("the reader beside the restores: " + why);
    }

    // Restoring in place of a damaged file, killed: the next restore brings the store back.
    SetCurrentStore(nullptr);
    int replaced = 0;
    for (; replaced < (plan.isFull ? 200 : 20); ++replaced) {
        std::filesystem::resize_file(directory + "/data.mdb", 8192);
        Child restoring([&](const Channel&) { return Restore(directory, files[0]); });
        pause(4000);
        auto why = restoring.Kill() ? std::string() : restoring.Failure();
        if (!std::filesystem::exists(directory + "/data.mdb")) {
            why = "the store's file is gone";
        }
        if (why.empty()) {
            why = InChild([&] {
                auto failure = Restore(directory, files[1]);
                if (failure.empty()) {
                    failure = UseStore(directory).message;
                }
                return failure.empty() ? ExpectGeneration(kGenerations[1], kGenerations[1]) : failure;
            });
        }
        if (!why.empty()) {
            return Failed("restoring a damaged store, " + std::to_string(replaced) + ": " + why);
        }
    }
    return {{},
            std::to_string(backups) + " backups beside " + std::to_string(acknowledged) + " Saves, " +
                std::to_string(killed) + " of them killed; " + std::to_string(restores) +
                " restores beside a reader, " + std::to_string(killedRestores) + " of them killed; " +
                std::to_string(replaced) + " restores of a damaged store killed",
            {}};
}

} // namespace wqspcfg::endurance
