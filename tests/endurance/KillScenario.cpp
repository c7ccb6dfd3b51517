// A writer saves generation after generation and is killed at random moments. After each kill the store opens and holds
// exactly one generation, and never an older one than the writer had acknowledged.
#include "endurance/Scenario.h"

#include <thread>

namespace wqspcfg::endurance {

namespace {

constexpr int kKills = 1000;

std::string WriteOn(const std::string& directory, const Channel& channel)
{
    if (const auto error = UseStore(directory)) {
        return error.message;
    }
    Dispenser config;
    if (const auto error = Load(config)) {
        return error.message;
    }
    std::uint32_t generation = 0;
    if (auto mixed = config.CheckGeneration(generation); !mixed.empty()) {
        return mixed;
    }
    for (;;) {
        if (const auto error = Save(config, ++generation)) {
            return error.message;
        }
        channel.Send(generation);
    }
}

} // namespace

Result KillScenario(const Plan& plan)
{
    const Scratch scratch;
    const auto directory = scratch / "store";
    std::uint32_t acknowledged = 1;
    auto why = MakeStoreInChild(directory, 1);
    if (!why.empty()) {
        return Failed("the store was not made: " + why);
    }
    // This process keeps the store open all the time; others open it anew.
    if (const auto error = UseStore(directory)) {
        return Failed(error.message);
    }

    std::mt19937_64 random(plan.seed);
    const auto microseconds = [&random](std::uint64_t most) { return std::chrono::microseconds(random() % most); };
    const auto end = plan.End();
    int kills = 0;
    int duringStart = 0;
    int unacknowledged = 0;
    std::uint64_t saves = 0;
    while (plan.isFull ? kills < kKills : Clock::now() < end) {
        const auto before = acknowledged;
        Child writer([&directory](const Channel& channel) { return WriteOn(directory, channel); });
        // Half of the kills come soon after a Save was acknowledged, the others at any time from the fork on.
        if (kills % 2 == 0) {
            for (auto count = 1 + random() % 4; count > 0; --count) {
                const auto number = writer.Receive(std::chrono::seconds(30));
                if (!number) {
                    why = writer.Wait(std::chrono::milliseconds(1));
                    return Failed("kill " + std::to_string(kills) + ": the writer does not write: " + why);
                }
                acknowledged = *number;
                ++saves;
            }
            std::this_thread::sleep_for(microseconds(4000));
        } else {
            std::this_thread::sleep_for(microseconds(25000));
        }
        if (!writer.Kill()) {
            return Failed("kill " + std::to_string(kills) + ": the writer gave up: " + writer.Failure());
        }
        ++kills;
        for (const auto number : writer.Drain()) {
            acknowledged = number;
            ++saves;
        }
        duringStart += acknowledged == before ? 1 : 0;

        std::uint32_t found = 0;
        why = ExpectGeneration(acknowledged, acknowledged + 1, &found);
        if (why.empty() && kills % 4 == 0) {
            why = InChild([&] {
                const auto error = UseStore(directory);
                return error ? error.message : ExpectGeneration(found, found);
            });
        }
        if (!why.empty()) {
            return Failed("kill " + std::to_string(kills) + ": " + why);
        }
        unacknowledged += found == acknowledged + 1 ? 1 : 0;
        acknowledged = found;
    }
    return {{},
            std::to_string(kills) + " kills, " + std::to_string(saves) + " Saves acknowledged; " +
                std::to_string(duringStart) + " kills before the first Save, " + std::to_string(unacknowledged) +
                " between a Save's commit and its acknowledgement; the file has " +
                std::to_string(std::filesystem::file_size(directory + "/data.mdb") / 1024) + " KiB",
            {}};
}

} // namespace wqspcfg::endurance
