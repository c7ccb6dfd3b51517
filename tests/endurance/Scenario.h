// What the scenarios of the endurance program have in common.
#pragma once

#include "endurance/Process.h"
#include "wqspcfg/models/crd/SpCRDWQTYM1200RegInfo.h"
#include "wqspcfg/platform/base/Error.h"
#include "wqspcfg/platform/store/Session.h"

#include <cstdint>
#include <filesystem>
#include <random>
#include <string>
#include <string_view>

namespace wqspcfg::endurance {

struct Plan
{
    bool isFull = true;
    double seconds = 0; // for this scenario; the full form may take longer
    std::uint64_t seed = 0;

    Clock::time_point End() const
    {
        return Clock::now() + std::chrono::duration_cast<Clock::duration>(std::chrono::duration<double>(seconds));
    }
};

struct Result
{
    std::string failure; // empty: passed
    std::string summary; // what was done, in numbers
    std::string skipped; // why something, or everything where the summary is empty, was not done
};

inline Result Failed(std::string why)
{
    return {std::move(why), {}, {}};
}

// A folder that goes with the object; the process that made it ends it.
class Scratch
{
  public:
    explicit Scratch(const std::filesystem::path& parent = std::filesystem::temp_directory_path());
    ~Scratch();
    Scratch(const Scratch&) = delete;
    Scratch& operator=(const Scratch&) = delete;

    const std::filesystem::path& Path() const { return m_path; }
    std::string operator/(const std::string& name) const { return (m_path / name).string(); }

  private:
    std::filesystem::path m_path;
    pid_t m_owner;
};

// In memory, for work that is not about what reaches the disk.
std::filesystem::path FastDirectory();

std::string ReadWhole(const std::string& path);
void WriteWhole(const std::string& path, std::string_view content);

// Opens the store and makes it this process's current one.
Error UseStore(const std::string& directory, bool create = false);

// A card dispenser whose whole saved configuration tells of one number, its generation: numbers, texts that change
// their length with it, and four card units.
class Dispenser : public CSpCRDWQTYM1200RegInfo
{
  public:
    // The service with this number.
    explicit Dispenser(int number = 0);
    ~Dispenser() override; // the units' hoppers, too

    // Creates the keys that name the service.
    static Error Install(int number = 0);

    void SetGeneration(std::uint32_t generation);
    // Why what was loaded is not of one generation, or empty.
    std::string CheckGeneration(std::uint32_t& generation);

  private:
    void DropHoppers();
};

// Each with the store's error, if there was one.
Error Save(Dispenser& config, std::uint32_t generation);
// `isInLog` tells whether the log has an error line.
Error Load(Dispenser& config, bool* isInLog = nullptr);
// Loads a fresh object and expects one generation in it, at least `least` and at most `most`. Why not, or empty.
std::string ExpectGeneration(std::uint32_t least, std::uint32_t most, std::uint32_t* found = nullptr, int number = 0);

// Makes a store with one service in the generation. Why not, or empty.
std::string MakeStore(const std::string& directory, std::uint32_t generation);
// In a process of its own, so that this one does not have the store open.
std::string MakeStoreInChild(const std::string& directory, std::uint32_t generation);

// A child's work: holds a state of the store until it is killed, and tells when it begins to.
std::string HoldState(const std::string& directory, const Channel& channel);

Result KillScenario(const Plan& plan);
Result ProcessesScenario(const Plan& plan);
Result BackupScenario(const Plan& plan);
Result DamageScenario(const Plan& plan);
Result FullFileSystemScenario(const Plan& plan);
Result ReadOnlyFileScenario(const Plan& plan);
Result ReadOnlyMountScenario(const Plan& plan);
Result ForeignOwnerScenario(const Plan& plan);
Result RemovedDirectoryScenario(const Plan& plan);
Result CompactScenario(const Plan& plan);
Result RemovedLockScenario(const Plan& plan);
Result NoLockRightsScenario(const Plan& plan);
Result ClosedFilesScenario(const Plan& plan);
Result ForkScenario(const Plan& plan);

} // namespace wqspcfg::endurance
