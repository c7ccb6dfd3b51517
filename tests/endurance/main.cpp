// Wears out the embedded store. Each scenario runs in a process of its own; the last line is "N passed, N failed".
#include "endurance/Scenario.h"

#include <CLI/CLI.hpp>

#include <algorithm>
#include <cstdio>
#include <iterator>
#include <random>
#include <vector>

namespace {

using namespace wqspcfg::endurance;

struct Scenario
{
    const char* name;
    Result (*run)(const Plan&);
    double share;       // of the seconds that are given
    double fullSeconds; // where the full form is bounded by time
};

constexpr Scenario kScenarios[] = {
    {"kill", KillScenario, 0.20, 0},
    {"processes", ProcessesScenario, 0.25, 60},
    {"backup", BackupScenario, 0.15, 30},
    {"damage", DamageScenario, 0.20, 0},
    {"compact", CompactScenario, 0.05, 20},
    {"removed-lock-file", RemovedLockScenario, 0.05, 10},
    {"no-lock-rights", NoLockRightsScenario, 0.05, 10},
    {"forks", ForkScenario, 0.05, 10},
    {"closed-files", ClosedFilesScenario, 0, 0},
    {"full-file-system", FullFileSystemScenario, 0, 0},
    {"read-only-file", ReadOnlyFileScenario, 0, 0},
    {"read-only-mount", ReadOnlyMountScenario, 0, 0},
    {"foreign-owner", ForeignOwnerScenario, 0, 0},
    {"removed-directory", RemovedDirectoryScenario, 0, 0},
};
constexpr std::uint32_t kSkipped = 1;
constexpr auto kLimit = std::chrono::minutes(30);

double SecondsSince(Clock::time_point begin)
{
    return std::chrono::duration<double>(Clock::now() - begin).count();
}

} // namespace

int main(int argc, char** argv)
{
    CLI::App app("Wears out the embedded store: killed writers, many processes, damage, missing space and rights.",
                 "wqspcfg_endurance");
    double seconds = 0;
    std::vector<std::string> only;
    std::uint64_t seed = std::random_device()();
    std::string names;
    for (const auto& scenario : kScenarios) {
        names += std::string(names.empty() ? "" : ", ") + scenario.name;
    }
    app.add_option("--seconds", seconds,
                   "The short form, bounded to about this time; else 1,000 kills and a minute of "
                   "many processes")
        ->check(CLI::PositiveNumber);
    app.add_option("--only", only, "Scenarios by name: " + names);
    app.add_option("--seed", seed, "Of the random numbers; else another one each time");
    CLI11_PARSE(app, argc, argv);
    for (const auto& name : only) {
        if (std::none_of(std::begin(kScenarios), std::end(kScenarios),
                         [&name](const auto& scenario) { return name == scenario.name; })) {
            std::fprintf(stderr, "wqspcfg_endurance: there is no scenario %s; there are %s\n", name.c_str(),
                         names.c_str());
            return 2;
        }
    }

    std::printf("seed %llu\n", static_cast<unsigned long long>(seed));
    int passed = 0;
    int failed = 0;
    for (const auto& scenario : kScenarios) {
        if (!only.empty() && std::find(only.begin(), only.end(), scenario.name) == only.end()) {
            continue;
        }
        const Plan plan{seconds == 0,
                        seconds == 0   ? scenario.fullSeconds
                        : only.empty() ? seconds * scenario.share
                                       : seconds / static_cast<double>(only.size()),
                        seed};
        const auto begin = Clock::now();
        Child child([&](const Channel& channel) {
            const auto result = scenario.run(plan);
            if (!result.skipped.empty()) {
                std::printf("%s: skipped: %s\n", scenario.name, result.skipped.c_str());
            }
            if (!result.summary.empty()) {
                std::printf("%s: %s\n", scenario.name, result.summary.c_str());
            } else if (result.failure.empty()) {
                channel.Send(kSkipped);
            }
            std::fflush(stdout);
            return result.failure;
        });
        const auto failure = child.Wait(kLimit);
        const bool isSkipped = !child.Drain().empty();
        passed += failure.empty() && !isSkipped ? 1 : 0;
        failed += failure.empty() ? 0 : 1;
        std::printf("%s: %s after %.1f s%s\n", scenario.name,
                    !failure.empty() ? "FAILED"
                    : isSkipped      ? "skipped"
                                     : "passed",
                    SecondsSince(begin), failure.empty() ? "" : (": " + failure).c_str());
        std::fflush(stdout);
    }
    std::printf("%d passed, %d failed\n", passed, failed);
    return failed == 0 ? 0 : 1;
}
