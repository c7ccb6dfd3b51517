#include "support/StoreTesting.h"
#include "wqspcfg/platform/store/Backup.h"

#include <csignal>
#include <functional>
#include <random>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace wqspcfg::test {

namespace {

namespace fs = std::filesystem;

constexpr std::wstring_view kKey = L"SOFTWARE\\XFS\\Device";

// A process that runs `work` while the test goes on, and then waits until it is let go.
class OtherProcess
{
  public:
    // `work` calls its argument once: that returns when the test calls Continue.
    explicit OtherProcess(const std::function<int(const std::function<void()>&)>& work)
    {
        EXPECT_EQ(pipe(m_ready), 0);
        EXPECT_EQ(pipe(m_go), 0);
        m_child = fork();
        if (m_child == 0) {
            _exit(work([this] {
                char byte = 0;
                if (write(m_ready[1], &byte, 1) != 1 || read(m_go[0], &byte, 1) != 1) {
                    _exit(99);
                }
            }));
        }
        close(m_ready[1]);
        char byte = 0;
        EXPECT_EQ(read(m_ready[0], &byte, 1), 1);
    }
    ~OtherProcess()
    {
        for (const int file : {m_ready[0], m_go[0], m_go[1]}) {
            close(file);
        }
    }
    OtherProcess(const OtherProcess&) = delete;
    OtherProcess& operator=(const OtherProcess&) = delete;

    pid_t Id() const { return m_child; }
    int Finish()
    {
        const char byte = 0;
        EXPECT_EQ(write(m_go[1], &byte, 1), 1);
        int status = 0;
        EXPECT_EQ(waitpid(m_child, &status, 0), m_child);
        return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
    }

  private:
    int m_ready[2] = {-1, -1};
    int m_go[2] = {-1, -1};
    pid_t m_child = -1;
};

class LmdbBackupTest : public testing::Test
{
  protected:
    LmdbBackupTest()
    {
        // Several levels of pages, values on pages of their own, free pages, names with a spelling of their own.
        const auto store = Open(Address(), {.create = true});
        for (int generation = 0; generation < 2; ++generation) {
            const auto transaction = Begin(*store, Access::Write);
            for (int k = 0; k < 40; ++k) {
                KeyId key = 0;
                EXPECT_EQ(transaction->CreateKey(k % 2 == 0 ? Hive::LocalMachine : Hive::Users,
                                                 L"Software\\Device" + std::to_wstring(k), key),
                          Outcome::Found);
                for (int v = 0; v < 20; ++v) {
                    const auto size = v == 0 && k % 8 == 0 ? 9000U : static_cast<unsigned>(10 + v + generation);
                    EXPECT_EQ(transaction->SetValue(key, L"Value" + std::to_wstring(v),
                                                    {ValueType::Binary, ToBytes(std::string(size, 'a'))}),
                              Outcome::Found);
                }
            }
            EXPECT_EQ(transaction->Commit(true), Outcome::Found);
        }
        Put(*store, kKey, L"n", DwordBytes(1));
    }

    std::string Directory() const { return temporary.File("store"); }
    std::string Address() const { return "lmdb:" + Directory(); }
    std::string DataFile() const { return Directory() + "/data.mdb"; }
    std::string File() const { return temporary.File("backup"); }

    std::string Content() const
    {
        const auto store = Open(Address());
        return Dump(*store, L"") + Dump(*store, L"", Hive::Users);
    }

    bool BackUp() { return BackUpStore(Address(), File(), counts, error); }
    bool Restore() { return RestoreStore(Address(), File(), counts, kept, error); }

    TemporaryDirectory temporary;
    BackupCounts counts;
    std::string kept;
    Error error;
};

} // namespace

TEST_F(LmdbBackupTest, RestoresTheStateOfItsMomentUnderOpenProcesses)
{
    const auto store = Open(Address());
    const auto before = Content();
    WriteFile(File(), "an older backup");
    ASSERT_TRUE(BackUp()) << error.message;
    EXPECT_EQ(counts.values, 801U);
    EXPECT_EQ(counts.keys, 44U);

    Put(*store, kKey, L"n", DwordBytes(2));
    Put(*store, kKey, L"added", DwordBytes(7));
    OtherProcess other([this](const std::function<void()>& wait) {
        const auto own = Open(Address());
        const auto reader = Begin(*own, Access::Read);
        wait();
        ValueView value;
        if (reader->QueryAt(Hive::LocalMachine, kKey, L"added", value) != Outcome::Found) {
            return 1; // what it has begun, it ends on the old state
        }
        if (Get(*own, kKey, L"added") != "missing" || Get(*own, kKey, L"n") != "4:01000000") {
            return 2;
        }
        Put(*own, kKey, L"other", DwordBytes(3));
        return 0;
    });
    ASSERT_TRUE(Restore()) << error.message;
    EXPECT_EQ(kept, "");
    EXPECT_EQ(Content(), before);
    EXPECT_EQ(Get(*store, kKey, L"added"), "missing");
    EXPECT_EQ(other.Finish(), 0);
    EXPECT_EQ(Get(*store, kKey, L"other"), "4:03000000");
}

TEST_F(LmdbBackupTest, ADamagedBackupChangesNothing)
{
    const auto old = Content();
    ASSERT_TRUE(BackUp());
    const auto whole = ReadFile(File());
    const auto store = Open(Address());
    Put(*store, kKey, L"n", DwordBytes(2));
    const auto now = Content();
    int refused = 0;
    const auto expectHarmless = [&](const std::string& content, const std::string& what) {
        WriteFile(File(), content);
        if (Restore()) {
            EXPECT_EQ(Content(), old) << what;
            Put(*store, kKey, L"n", DwordBytes(2));
        } else {
            ++refused;
            EXPECT_EQ(error.kind, ErrorKind::Damaged) << what;
            EXPECT_TRUE(error.message.starts_with(File())) << error.message;
            EXPECT_EQ(Content(), now) << what;
        }
    };
    for (std::size_t page = 0; page < whole.size() / 4096; ++page) {
        expectHarmless(whole.substr(0, page * 4096), "cut at page " + std::to_string(page));
        auto content = whole;
        content.replace(page * 4096, 4096, 4096, '\0');
        expectHarmless(content, "page " + std::to_string(page) + " zeroed");
    }
    const auto afterPages = refused;
    EXPECT_GE(afterPages, static_cast<int>(2 * (whole.size() / 4096 - 1)));
    std::mt19937 random(1);
    for (int i = 0; i < 100; ++i) {
        auto content = whole;
        const auto at = random() % content.size();
        content[at] = static_cast<char>(content[at] ^ static_cast<char>(1U << (random() % 8)));
        expectHarmless(content, "byte " + std::to_string(at));
    }
    EXPECT_GT(refused - afterPages, 50);
    fs::remove(File());
    EXPECT_FALSE(Restore());
    EXPECT_EQ(error.kind, ErrorKind::NotFound);
    EXPECT_EQ(Content(), now);
}

TEST_F(LmdbBackupTest, ReplacesADamagedOrMissingStoreThatNobodyUses)
{
    const auto before = Content();
    ASSERT_TRUE(BackUp());
    auto content = ReadFile(DataFile());
    std::fill(content.begin() + 8192, content.end(), 'x');
    WriteFile(DataFile(), content);
    fs::permissions(DataFile(), fs::perms(0640));
    EXPECT_FALSE(BackUp());
    EXPECT_EQ(error.kind, ErrorKind::Damaged);
    {
        OtherProcess other([this](const std::function<void()>& wait) {
            const auto store = Open(Address());
            wait();
            return 0;
        });
        EXPECT_FALSE(Restore());
        EXPECT_NE(error.message.find("process " + std::to_string(other.Id())), std::string::npos) << error.message;
        EXPECT_EQ(ReadFile(DataFile()), content);
        EXPECT_EQ(other.Finish(), 0);
    }
    {
        const auto store = Open(Address());
        EXPECT_FALSE(Restore());
        EXPECT_NE(error.message.find("this process"), std::string::npos) << error.message;
    }
    ASSERT_TRUE(Restore()) << error.message;
    EXPECT_EQ(Content(), before);
    EXPECT_EQ(ReadFile(kept), content); // nothing is thrown away
    EXPECT_EQ(fs::status(DataFile()).permissions(), fs::perms(0640));

    fs::remove_all(Directory());
    ASSERT_TRUE(Restore()) << error.message;
    EXPECT_EQ(kept, "");
    EXPECT_EQ(Content(), before);
    const auto store = Open(Address());
    Put(*store, kKey, L"n", DwordBytes(5));
    EXPECT_EQ(Get(*store, kKey, L"n"), "4:05000000");
}

TEST_F(LmdbBackupTest, AFailureLeavesTheFileAsItWas)
{
    ASSERT_TRUE(BackUp());
    const auto whole = ReadFile(File());
    Put(*Open(Address()), kKey, L"n", DwordBytes(2));
    const auto child = fork();
    if (child == 0) {
        // A limit on the file's length fails a write as a full file system does.
        (void)signal(SIGXFSZ, SIG_IGN);
        const rlimit limit{20000, RLIM_INFINITY};
        _exit(setrlimit(RLIMIT_FSIZE, &limit) == 0 && !BackUp() && error.kind == ErrorKind::NoSpace &&
                      error.message.find(File() + ": ") != std::string::npos
                  ? 0
                  : 1);
    }
    int status = 0;
    EXPECT_EQ(waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0);
    EXPECT_EQ(ReadFile(File()), whole);

    const auto now = Content();
    for (const auto& path : {DataFile(), Directory() + "/lock.mdb", Directory(), std::string("/dev/null"),
                             temporary.File("missing") + "/backup"}) {
        EXPECT_FALSE(BackUpStore(Address(), path, counts, error)) << path;
        EXPECT_NE(error.message.find(path), std::string::npos) << error.message;
    }
    EXPECT_EQ(Content(), now);
    // Nothing half written is left beside it.
    std::vector<std::string> names;
    for (const auto& entry : fs::directory_iterator(temporary.Path())) {
        names.push_back(entry.path().filename().string());
    }
    std::sort(names.begin(), names.end());
    EXPECT_EQ(names, (std::vector<std::string>{"backup", "store"}));
}

} // namespace wqspcfg::test
