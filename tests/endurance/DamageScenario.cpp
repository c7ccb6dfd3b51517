// A store whose file was cut, zeroed or overwritten. Opening or reading it gives an error or right data, never a crash,
// a hang or silent defaults; nothing right is lost by writing to it; and a restore brings everything back.
#include "endurance/Scenario.h"
#include "wqspcfg/platform/store/Backup.h"
#include "wqspcfg/platform/store/regfile/RegFile.h"

#include <algorithm>
#include <numeric>
#include <sstream>
#include <vector>

namespace wqspcfg::endurance {

namespace {

constexpr int kDispensers = 10;
constexpr std::uint32_t kGeneration = 11; // has texts of more than a page
constexpr std::size_t kPage = 4096;
constexpr int kFullRounds = 5000;
constexpr auto kTrialLimit = std::chrono::seconds(20);
constexpr char kErrorGiven[] = "error given";

std::string Exported(Error& error)
{
    std::ostringstream text;
    const auto store = CurrentStore(error);
    return store && ExportRegFile(*store, text, error) ? text.str() : std::string();
}

// Why a damaged store's behaviour is wrong; kErrorGiven or empty when it is right.
class Trial
{
  public:
    Trial(const std::string& directory, const std::string& exported) : m_directory(directory), m_exported(exported) {}

    std::string Run()
    {
        if (const auto error = UseStore(m_directory)) {
            return error.message.find(m_directory) != std::string::npos
                       ? kErrorGiven
                       : "the error does not name the store: " + error.message;
        }
        bool failed = false;
        std::vector<bool> isReadable(kDispensers);
        for (int number = 0; number < kDispensers; ++number) {
            bool isRight = false;
            if (auto why = Check(number, kGeneration, isRight); !why.empty()) {
                return why;
            }
            isReadable[static_cast<std::size_t>(number)] = isRight;
            failed = failed || !isRight;
        }
        Error error;
        const auto exported = Exported(error);
        failed = failed || error;
        if (!error && exported != m_exported) {
            return "an export without an error is not what it should be";
        }
        // A write is refused, or does what it says. Either way what could be read can be read.
        std::uint32_t written = kGeneration;
        {
            Dispenser config(0);
            if (!Save(config, kGeneration + 1)) {
                written = kGeneration + 1;
            }
        }
        failed = failed || written == kGeneration;
        for (int number = 0; number < kDispensers; ++number) {
            bool isRight = false;
            if (auto why = Check(number, number == 0 ? written : kGeneration, isRight); !why.empty()) {
                return why + " after a write";
            }
            if (isReadable[static_cast<std::size_t>(number)] && !isRight) {
                return "what could be read before a write cannot be read after it";
            }
        }
        return failed ? kErrorGiven : "";
    }

  private:
    std::string Check(int number, std::uint32_t expected, bool& isRight) const
    {
        ClearStoreError();
        Dispenser config(number);
        const auto named = LastStoreError(); // it looks its name up
        bool isInLog = false;
        const auto error = Load(config, &isInLog);
        isRight = !error && !named;
        if (error && (!isInLog || error.message.find(m_directory) == std::string::npos)) {
            return "the log or the error does not tell: " + error.message;
        }
        std::uint32_t generation = 0;
        if (isRight) {
            auto mixed = config.CheckGeneration(generation);
            if (!mixed.empty() || generation != expected) {
                return "Load gave no error, but " +
                       (mixed.empty() ? "generation " + std::to_string(generation) : mixed);
            }
        }
        return {};
    }

    const std::string& m_directory;
    const std::string& m_exported;
};

class Damage
{
  public:
    explicit Damage(const Plan& plan) : m_plan(plan), m_random(plan.seed) {}

    Result Run()
    {
        auto why = Make();
        if (!why.empty()) {
            return Failed("the store was not made: " + why);
        }
        if (why = Use(m_whole); !why.empty()) {
            return Failed("the undamaged store: " + why);
        }
        const auto begin = Clock::now();
        const auto end = m_plan.End();
        const auto pages = Pages(begin + (end - begin) / 2);
        LockFiles();
        int rounds = 0;
        while (m_failure.empty() && (m_plan.isFull ? rounds < kFullRounds : Clock::now() < end)) {
            RandomBytes(rounds++);
        }
        if (!m_failure.empty()) {
            return Failed(m_failure);
        }
        if (m_errors == 0 || m_refused == 0) {
            return Failed("no damage was ever noticed");
        }
        return {{},
                std::to_string(m_trials) + " damaged files (" + std::to_string(pages) + " of " +
                    std::to_string(m_whole.size() / kPage) + " pages cut, zeroed, random and exchanged; " +
                    std::to_string(rounds) + " of random bytes): " + std::to_string(m_errors) + " gave an error, " +
                    std::to_string(m_trials - m_errors) + " were right all the same; " + std::to_string(m_restores) +
                    " restored from a backup; " + std::to_string(m_refused) + " damaged backups refused",
                {}};
    }

  private:
    std::string Make()
    {
        const auto made = m_scratch / "made";
        auto why = InChild([&] {
            if (const auto error = UseStore(made, true)) {
                return error.message;
            }
            for (auto generation = kGeneration - 3; generation <= kGeneration; ++generation) {
                for (int number = 0; number < kDispensers; ++number) {
                    if (const auto error = Dispenser::Install(number)) {
                        return error.message;
                    }
                    Dispenser config(number);
                    if (const auto error = Save(config, generation)) {
                        return error.message;
                    }
                }
            }
            Error error;
            WriteWhole(m_scratch / "exported", Exported(error));
            BackupCounts counts;
            (void)(error || BackUpStore("lmdb:" + made, m_backup, counts, error));
            return error.message;
        });
        m_whole = ReadWhole(made + "/data.mdb");
        m_exported = ReadWhole(m_scratch / "exported");
        return why;
    }

    std::string Use(std::string_view content, bool withLockFile = false)
    {
        std::filesystem::create_directories(m_directory);
        if (!withLockFile) {
            std::filesystem::remove(m_directory + "/lock.mdb");
        }
        WriteWhole(m_directory + "/data.mdb", content);
        return InChild([this] { return Trial(m_directory, m_exported).Run(); }, kTrialLimit);
    }

    void Try(std::string_view content, const std::string& what, bool withRestore)
    {
        if (!m_failure.empty()) {
            return;
        }
        ++m_trials;
        const auto why = Use(content);
        m_errors += why == kErrorGiven ? 1 : 0;
        if (!why.empty() && why != kErrorGiven) {
            Keep(content, what + ": " + why);
        } else if (withRestore) {
            TryRestore(content, what);
        }
    }

    // From a sound backup into the damaged store, and from a damaged backup into a sound store.
    void TryRestore(std::string_view content, const std::string& what)
    {
        const auto restored = [this](const std::string& from, bool mayRefuse) {
            return InChild(
                [&, this] {
                    BackupCounts counts;
                    std::string kept;
                    Error error;
                    if (!RestoreStore("lmdb:" + m_directory, from, counts, kept, error)) {
                        if (!mayRefuse || error.message.find(from) == std::string::npos) {
                            return "not restored: " + error.message;
                        }
                    }
                    const auto refused = error;
                    error = UseStore(m_directory);
                    const auto now = Exported(error);
                    if (error) {
                        return "after a restore: " + error.message;
                    }
                    if (now != m_exported) {
                        return std::string("after a restore the store does not hold what it should");
                    }
                    return std::string(refused ? kErrorGiven : "");
                },
                kTrialLimit);
        };
        WriteWhole(m_directory + "/data.mdb", content);
        auto why = restored(m_backup, false);
        ++m_restores;
        if (why.empty()) {
            const auto damaged = m_scratch / "damaged";
            WriteWhole(damaged, content);
            why = restored(damaged, true);
            m_refused += why == kErrorGiven ? 1 : 0;
        }
        if (!why.empty() && why != kErrorGiven) {
            Keep(content, what + ": " + why);
        }
    }

    // The file tells the developer what the words cannot.
    void Keep(std::string_view content, const std::string& why)
    {
        const auto kept = (std::filesystem::temp_directory_path() / "wqspcfg-endurance-damaged.mdb").string();
        WriteWhole(kept, content);
        m_failure = why + "; the damaged file is kept as " + kept;
    }

    // All pages in any order; in the short form, as many as there is time for. Returns how many.
    std::size_t Pages(Clock::time_point end)
    {
        std::vector<std::size_t> pages(m_whole.size() / kPage);
        std::iota(pages.begin(), pages.end(), std::size_t{0});
        std::shuffle(pages.begin(), pages.end(), m_random);
        std::size_t count = 0;
        for (const auto page : pages) {
            if (!m_failure.empty() || (!m_plan.isFull && Clock::now() >= end)) {
                break;
            }
            ++count;
            const auto name = " (page " + std::to_string(page) + ')';
            const auto at = page * kPage;
            Try(std::string_view(m_whole).substr(0, at), "cut" + name, true);
            Try(std::string_view(m_whole).substr(0, at + 1 + m_random() % (kPage - 1)), "cut within" + name, false);
            auto content = m_whole;
            content.replace(at, kPage, kPage, '\0');
            Try(content, "zeroed" + name, true);
            for (std::size_t i = 0; i < kPage; ++i) {
                content[at + i] = static_cast<char>(m_random());
            }
            Try(content, "random" + name, true);
            const auto other = m_random() % (m_whole.size() / kPage) * kPage;
            content = m_whole;
            content.replace(at, kPage, m_whole, other, kPage);
            content.replace(other, kPage, m_whole, at, kPage);
            Try(content, "exchanged" + name, false);
        }
        return count;
    }

    void RandomBytes(int round)
    {
        auto content = m_whole;
        const auto runs = 1 + m_random() % 8;
        for (std::uint64_t i = 0; i < runs; ++i) {
            auto at = m_random() % content.size();
            if (round % 3 != 0) {
                // In the heads of pages and the offsets behind them a byte does the most.
                at = at / kPage * kPage + m_random() % (round % 3 == 1 ? 32 : 200);
            }
            const auto length = std::min(content.size() - at, m_random() % 4 == 0 ? 1 + m_random() % 300 : 1);
            for (std::size_t byte = at; byte < at + length; ++byte) {
                content[byte] = static_cast<char>(m_random());
            }
        }
        Try(content, "random bytes, round " + std::to_string(round), round % 10 == 0);
    }

    // What the lock file holds when nobody uses the store does not matter.
    void LockFiles()
    {
        for (const std::size_t size : {0U, 1U, 100U, 4096U, 33792U, 100000U}) {
            std::string content(size, '\0');
            for (auto& byte : content) {
                byte = static_cast<char>(m_random());
            }
            WriteWhole(m_directory + "/lock.mdb", content);
            ++m_trials;
            if (auto why = Use(m_whole, true); m_failure.empty() && !why.empty()) {
                m_failure = "a lock file of " + std::to_string(size) + " random bytes: " + why;
            }
        }
    }

    const Plan& m_plan;
    std::mt19937_64 m_random;
    Scratch m_scratch{FastDirectory()};
    const std::string m_directory = m_scratch / "store";
    const std::string m_backup = m_scratch / "backup";
    std::string m_whole;
    std::string m_exported;
    std::string m_failure;
    int m_trials = 0;
    int m_errors = 0;
    int m_restores = 0;
    int m_refused = 0;
};

} // namespace

Result DamageScenario(const Plan& plan)
{
    return Damage(plan).Run();
}

} // namespace wqspcfg::endurance
