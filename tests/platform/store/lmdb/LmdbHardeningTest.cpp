// The embedded store among hostile and careless neighbours: closed standard files, planted links, rights, removed lock
// files, forks, writers that do not end.
#include "support/Sanitizers.h"
#include "support/StoreTesting.h"
#include "wqspcfg/core/Log.h"
#include "wqspcfg/core/RegInfo.h"
#include "wqspcfg/platform/store/Backup.h"
#include "wqspcfg/platform/store/LockWait.h"
#include "wqspcfg/platform/store/Maintenance.h"
#include "wqspcfg/platform/store/Session.h"
#include "wqspcfg/platform/store/lmdb/LmdbFiles.h"
#include "wqspcfg/platform/store/regfile/RegFile.h"

#include <atomic>
#include <csignal>
#include <cstdlib>
#include <fstream>
#include <functional>
#include <sys/inotify.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace wqspcfg::test {

namespace {

namespace fs = std::filesystem;

constexpr std::wstring_view kKey = L"SOFTWARE\\XFS\\Device";
constexpr uid_t kNobody = 65534;

int Ended(pid_t child)
{
    int status = 0;
    EXPECT_EQ(waitpid(child, &status, 0), child);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
}

int InChild(const std::function<int()>& work)
{
    const auto child = fork();
    if (child == 0) {
        alarm(60); // a child that hangs fails
        _exit(work());
    }
    return Ended(child);
}

// A process that takes a step of its work each time the test asks for one.
class Steps
{
  public:
    // `work` calls its argument where a step ends: that returns when the next one is asked for.
    explicit Steps(const std::function<int(const std::function<void()>&)>& work)
    {
        EXPECT_EQ(pipe(m_done), 0);
        EXPECT_EQ(pipe(m_go), 0);
        m_child = fork();
        if (m_child == 0) {
            close(m_done[0]);
            close(m_go[1]);
            alarm(60);
            _exit(work([this] {
                char byte = 0;
                if (write(m_done[1], &byte, 1) != 1 || read(m_go[0], &byte, 1) != 1) {
                    _exit(99);
                }
            }));
        }
        close(m_done[1]);
        close(m_go[0]);
        Await();
    }
    ~Steps()
    {
        close(m_done[0]);
        if (m_child > 0) {
            Finish();
        }
    }
    Steps(const Steps&) = delete;
    Steps& operator=(const Steps&) = delete;

    void Next()
    {
        EXPECT_EQ(write(m_go[1], "", 1), 1);
        Await();
    }
    // Lets it go on to its end.
    int Finish()
    {
        EXPECT_EQ(write(m_go[1], "", 1), 1);
        close(m_go[1]);
        return Ended(std::exchange(m_child, -1));
    }
    pid_t Id() const { return m_child; }

  private:
    void Await()
    {
        char byte = 0;
        EXPECT_EQ(read(m_done[0], &byte, 1), 1);
    }

    int m_done[2] = {-1, -1};
    int m_go[2] = {-1, -1};
    pid_t m_child = -1;
};

class LmdbHardeningTest : public testing::Test
{
  protected:
    LmdbHardeningTest() { EXPECT_EQ(chmod(temporary.Path().c_str(), 0755), 0); }
    ~LmdbHardeningTest() override
    {
        SetCurrentStore(nullptr);
        SetLockTimeout(std::chrono::seconds(60));
        SetLockWaitHandler(nullptr);
    }

    std::string Directory() const { return temporary.File("store"); }
    std::string Address(std::string_view name = "store") const { return "lmdb:" + temporary.File(name); }
    std::string DataFile() const { return Directory() + "/data.mdb"; }
    std::string LockFile() const { return Directory() + "/lock.mdb"; }
    void Create() { Put(*Open(Address(), {.create = true}), kKey, L"n", DwordBytes(1)); }
    // The store and its directory are another user's.
    void GiveAway()
    {
        for (const auto& path : {Directory(), DataFile(), LockFile()}) {
            ASSERT_TRUE(lchown(path.c_str(), kNobody, kNobody) == 0 || errno == ENOENT) << path;
        }
    }
    // "OWNER:GROUP MODE" of a file.
    static std::string Rights(const std::string& path)
    {
        struct stat status = {};
        EXPECT_EQ(lstat(path.c_str(), &status), 0) << path;
        char text[64];
        (void)snprintf(text, sizeof text, "%u:%u %o", status.st_uid, status.st_gid, status.st_mode & 07777U);
        return text;
    }
    std::string WriteRefusal(Store& store)
    {
        Error error;
        return store.Begin(Access::Write, error) ? "" : error.message;
    }
    std::string Refusal(const OpenOptions& options = {})
    {
        Error error;
        return OpenStore(Address(), options, error) ? "" : error.message;
    }

    TemporaryDirectory temporary;
};

// The superuser uses a store that others may write.
class TrustTheStore
{
  public:
    TrustTheStore() { EXPECT_EQ(setenv("WQSPCFG_TRUST_STORE", "1", 1), 0); }
    ~TrustTheStore() { unsetenv("WQSPCFG_TRUST_STORE"); }
    TrustTheStore(const TrustTheStore&) = delete;
    TrustTheStore& operator=(const TrustTheStore&) = delete;
};

bool BecomeNobody(gid_t group = kNobody)
{
    return setgid(group) == 0 && setuid(kNobody) == 0;
}

bool Has(const std::string& text, std::string_view part)
{
    return text.find(part) != std::string::npos;
}

} // namespace

TEST_F(LmdbHardeningTest, WhatAProcessWithoutStandardFilesPrintsStaysOutOfTheStore)
{
    for (int closed = 1; closed < 8; ++closed) {
        EXPECT_EQ(InChild([&] {
                      for (int fd = 0; fd < 3; ++fd) {
                          if ((closed >> fd & 1) != 0) {
                              close(fd);
                          }
                      }
                      Error error;
                      const auto store = OpenStore(Address(), {.create = true}, error);
                      if (!store || !store->Begin(Access::Write, error)) {
                          return 1;
                      }
                      for (int fd = 0; fd < 3; ++fd) {
                          if ((closed >> fd & 1) != 0) {
                              (void)!write(fd, std::string(9000, 'x').data(), 9000);
                          }
                      }
                      Put(*store, kKey, L"n", DwordBytes(1));
                      return 0;
                  }),
                  0);
        EXPECT_EQ(Get(*Open(Address()), kKey, L"n"), "4:01000000") << closed;
        EXPECT_FALSE(Has(ReadFile(LockFile()), "xxxx")) << closed;
    }
}

TEST_F(LmdbHardeningTest, NoProgramThatIsStartedInheritsAFileOfTheStore)
{
    Create();
    const auto store = Open(Address());
    const auto reader = Begin(*store, Access::Read);
    const auto inherited = [this] {
        std::string names;
        for (const auto& entry : fs::directory_iterator("/proc/self/fd")) {
            std::error_code code;
            const auto file = fs::read_symlink(entry.path(), code).string();
            const auto flags = fcntl(std::stoi(entry.path().filename().string()), F_GETFD);
            names += file.starts_with(temporary.Path().string()) && (flags & FD_CLOEXEC) == 0 ? file + ' ' : "";
        }
        return names;
    };
    EXPECT_EQ(inherited(), "");
    const FileDescriptor copy(open(temporary.File("copy").c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600));
    class Watcher final : public RegFileVisitor
    {
      public:
        explicit Watcher(std::function<std::string()> look) : m_look(std::move(look)) {}
        bool Key(Hive, std::wstring_view, Error&) override { return ++keys > 0 && m_look().empty(); }
        bool DeleteKey(Hive, std::wstring_view, Error&) override { return true; }
        bool Value(std::wstring_view, const ValueView&, Error&) override { return true; }
        bool DeleteValue(std::wstring_view, Error&) override { return true; }
        int keys = 0;

      private:
        std::function<std::string()> m_look;
    };
    WriteFile(temporary.File("a.reg"), "REGEDIT4\n[HKEY_USERS\\a]\n");
    Watcher watcher(inherited);
    Error error;
    bool isTakenAsUtf8 = false;
    EXPECT_TRUE(ReadRegFile(temporary.File("a.reg"), 0, watcher, isTakenAsUtf8, error) && watcher.keys == 1);
    EXPECT_EQ(WriteStore(copy, kLeastMapSize,
                         [&](MDB_txn*, MDB_dbi) {
                             EXPECT_EQ(inherited(), "");
                             return 0;
                         }),
              0);
}

TEST_F(LmdbHardeningTest, PlantedFilesAreRefusedAndWhatTheyLeadToIsLeftAlone)
{
    const auto victim = temporary.File("victim");
    const auto plant = [&](const std::string& at, const std::function<void()>& make) {
        Create();
        WriteFile(victim, "untouched");
        ASSERT_EQ(chmod(victim.c_str(), 0600), 0);
        fs::remove(at);
        make();
        for (const bool isForeign : {false, true}) {
            if (isForeign) {
                if (geteuid() != 0) {
                    break;
                }
                GiveAway();
            }
            const TrustTheStore trust; // so that the superuser opens all files
            EXPECT_NE(Refusal({.create = true}), "") << at << isForeign;
            EXPECT_EQ(ReadFile(victim), "untouched");
        }
        fs::remove_all(Directory());
    };
    for (const auto& name : {DataFile(), LockFile()}) {
        plant(name, [&] { fs::create_symlink(victim, name); });
        plant(name, [&] { fs::create_symlink(temporary.File("fresh"), name); });
        EXPECT_FALSE(fs::exists(temporary.File("fresh")));
        plant(name, [&] { fs::create_hard_link(victim, name); });
        plant(name, [&] { EXPECT_EQ(mkfifo(name.c_str(), 0600), 0); });
        plant(name, [&] { fs::create_directory(name); });
    }
    if (geteuid() == 0) {
        Create();
        ASSERT_EQ(chown(LockFile().c_str(), 1234, 1234), 0);
        const TrustTheStore trust;
        EXPECT_TRUE(Has(Refusal(), "1234"));
    }
}

TEST_F(LmdbHardeningTest, TheSuperuserActsAsTheOwnerOfTheDirectory)
{
    if (geteuid() != 0) {
        GTEST_SKIP() << "needs the superuser";
    }
    const TrustTheStore trust;
    fs::create_directory(Directory());
    GiveAway();
    Create();
    for (const auto& path : {DataFile(), LockFile()}) {
        struct stat status = {};
        ASSERT_EQ(stat(path.c_str(), &status), 0);
        EXPECT_EQ(status.st_uid, kNobody);
        EXPECT_EQ(status.st_gid, kNobody);
    }
    // Its owner puts a link to a file of the superuser in its place again and again while that opens the store.
    const auto victim = temporary.File("victim");
    WriteFile(victim, "untouched");
    ASSERT_EQ(chmod(victim.c_str(), 0600), 0);
    const auto attacker = fork();
    if (attacker == 0) {
        if (!BecomeNobody()) {
            _exit(1);
        }
        for (;;) {
            (void)unlink(LockFile().c_str());
            (void)!symlink(victim.c_str(), LockFile().c_str());
            (void)unlink(LockFile().c_str());
        }
    }
    for (int i = 0; i < 300; ++i) {
        Error error;
        (void)OpenStore(Address(), {}, error);
    }
    kill(attacker, SIGKILL);
    EXPECT_EQ(Ended(attacker), -SIGKILL);
    EXPECT_EQ(ReadFile(victim), "untouched");
    struct stat status = {};
    ASSERT_EQ(stat(victim.c_str(), &status), 0);
    EXPECT_EQ(status.st_uid, 0U);
    EXPECT_EQ(geteuid(), 0U);
    WriteFile(temporary.File("own"), "x"); // and is itself again
    ASSERT_EQ(stat(temporary.File("own").c_str(), &status), 0);
    EXPECT_EQ(status.st_uid, 0U);
}

TEST_F(LmdbHardeningTest, TheSuperuserReadsACopyOfAStoreThatOthersMayWrite)
{
    if (geteuid() != 0) {
        GTEST_SKIP() << "needs the superuser";
    }
    const auto isUsed = [this] {
        for (const auto& entry : fs::directory_iterator("/proc/self/fd")) {
            std::error_code code;
            if (Has(fs::read_symlink(entry.path(), code).string(), "lock.mdb")) {
                return true;
            }
        }
        return Has(ReadFile("/proc/self/maps"), fs::canonical(Directory()).string());
    };
    const auto backup = temporary.File("backup");
    BackupCounts saved;
    CompactCounts counts;
    StoreStatus status;
    std::string kept;
    Error error;
    const auto isAdvised = [&error](std::string_view who, const std::string& path) {
        return error.kind == ErrorKind::AccessDenied && Has(error.message, who) &&
               Has(error.message, " may write to " + path) && Has(error.message, "runuser -u ") &&
               Has(error.message, "WQSPCFG_TRUST_STORE=1");
    };
    const auto change = [](uid_t owner, mode_t mode) {
        return [owner, mode](const std::string& path) {
            return chown(path.c_str(), owner, owner) == 0 && chmod(path.c_str(), mode) == 0;
        };
    };
    const auto giveAllTo = [this](uid_t owner) {
        return [this, owner](const std::string&) {
            return chown(Directory().c_str(), owner, owner) == 0 && chown(DataFile().c_str(), owner, owner) == 0 &&
                   chown(LockFile().c_str(), owner, owner) == 0;
        };
    };
    struct Case
    {
        std::string path;
        std::string who;
        std::function<bool(const std::string&)> open;
        std::function<bool(const std::string&)> close;
    };
    Create();
    for (const auto& [path, who, open, close] :
         {Case{Directory(), "user number 65534", giveAllTo(kNobody), giveAllTo(0)},
          Case{LockFile(), "group number 0", change(0, 0660), change(0, 0600)},
          Case{DataFile(), "group number 0", change(0, 0660), change(0, 0600)},
          Case{LockFile(), "everybody", change(0, 0606), change(0, 0600)}}) {
        auto store = Open(Address()); // from the time before
        EXPECT_EQ(WriteRefusal(*store), "");
        EXPECT_TRUE(isUsed());
        ASSERT_TRUE(open(path));
        EXPECT_FALSE(store->Begin(Access::Write, error));
        EXPECT_TRUE(isAdvised(who, path)) << error.message;
        EXPECT_FALSE(isUsed()) << path;
        EXPECT_EQ(Get(*store, kKey, L"n"), "4:01000000");
        EXPECT_FALSE(isUsed()) << path;
        EXPECT_TRUE(BackUpStore(Address(), backup, saved, error)) << error.message;
        EXPECT_TRUE(GetStoreStatus(Address(), true, status, error) && status.isSound && !status.knowsUsers);
        EXPECT_FALSE(CompactStore(Address(), counts, error));
        EXPECT_TRUE(isAdvised(who, path)) << error.message;
        EXPECT_FALSE(RestoreStore(Address(), backup, saved, kept, error));
        EXPECT_TRUE(isAdvised(who, path)) << error.message;
        EXPECT_FALSE(isUsed()) << path;
        store.reset();
        {
            const TrustTheStore trust;
            EXPECT_EQ(WriteRefusal(*Open(Address())), "");
        }
        ASSERT_TRUE(close(path));
        store = Open(Address());
        EXPECT_EQ(WriteRefusal(*store), "");
    }

    // A damaged one is not replaced.
    ASSERT_TRUE(giveAllTo(kNobody)(Directory()));
    fs::resize_file(DataFile(), 5000);
    EXPECT_FALSE(RestoreStore(Address(), backup, saved, kept, error));
    EXPECT_TRUE(Has(error.message, "WQSPCFG_TRUST_STORE=1")) << error.message;
    fs::remove_all(Directory());

    // Nor is one made that others would be able to write.
    for (const bool isShared : {false, true}) {
        fs::create_directory(Directory());
        ASSERT_EQ(chown(Directory().c_str(), isShared ? 0 : kNobody, 4321), 0);
        ASSERT_EQ(chmod(Directory().c_str(), isShared ? 02750 : 0755), 0);
        EXPECT_FALSE(OpenStore(Address(), {.create = true}, error));
        EXPECT_TRUE(isAdvised(isShared ? "group number 4321" : "user number 65534", "")) << error.message;
        EXPECT_TRUE(fs::is_empty(Directory()));
        fs::remove_all(Directory());
    }
    fs::create_directory(Directory());
    ASSERT_EQ(chmod(Directory().c_str(), 02700), 0); // as below a shared one
    Create();
    EXPECT_TRUE(Rights(DataFile()).ends_with(" 600") && Rights(LockFile()).ends_with(" 600"));
}

TEST_F(LmdbHardeningTest, NewFilesKeepAGroupThatTheOwnerIsNotIn)
{
    if (geteuid() != 0) {
        GTEST_SKIP() << "needs the superuser";
    }
    constexpr gid_t kGroup = 4321;
    const TrustTheStore trust;
    Create();
    GiveAway();
    ASSERT_EQ(chown(DataFile().c_str(), kNobody, kGroup), 0);
    ASSERT_EQ(chmod(DataFile().c_str(), 0660), 0);
    ASSERT_EQ(unlink(LockFile().c_str()), 0);
    const auto backup = temporary.File("backup");
    BackupCounts saved;
    CompactCounts counts;
    std::string kept;
    Error error;
    ASSERT_TRUE(BackUpStore(Address(), backup, saved, error)) << error.message;
    EXPECT_EQ(Rights(LockFile()), "65534:4321 660");
    ASSERT_TRUE(CompactStore(Address(), counts, error)) << error.message;
    EXPECT_EQ(Rights(DataFile()), "65534:4321 660");
    fs::resize_file(DataFile(), 5000);
    ASSERT_EQ(unlink(LockFile().c_str()), 0);
    ASSERT_TRUE(RestoreStore(Address(), backup, saved, kept, error)) << error.message;
    EXPECT_EQ(kept, DataFile() + ".damaged");
    EXPECT_EQ(Rights(DataFile()), "65534:4321 660");
    EXPECT_EQ(Rights(LockFile()), "65534:4321 660");
    // The superuser's rights to give a file away are not used for others, nor kept.
    EXPECT_EQ(InChild([&] {
                  if (!BecomeNobody() || !CompactStore(Address(), counts, error)) {
                      return 1;
                  }
                  return Rights(DataFile()) == "65534:65534 600" ? 0 : 2; // what group and others both had: nothing
              }),
              0);
}

TEST_F(LmdbHardeningTest, AFileThatTheSuperuserMadeForAnotherUserIsNamedWithTheRemedy)
{
    if (geteuid() != 0) {
        GTEST_SKIP() << "needs the superuser";
    }
    const TrustTheStore trust;
    const auto command = [](const std::string& path) { return "chown 65534 '" + path + "'"; };
    Create();
    ASSERT_EQ(chown(Directory().c_str(), kNobody, kNobody), 0);
    for (const auto& text : {Refusal(), InChild([&] { return BecomeNobody() && Has(Refusal(), "chown") ? 0 : 1; }) == 0
                                            ? Refusal()
                                            : std::string("not told to the user")}) {
        EXPECT_TRUE(Has(text, DataFile()) && Has(text, "Permission denied") && Has(text, "user number 0") &&
                    Has(text, command(DataFile())))
            << text;
    }
    // It can be read, and is written once the command was run; till then a refusal leaves the open files alone.
    ASSERT_EQ(chmod(DataFile().c_str(), 0644), 0);
    ASSERT_EQ(chown(LockFile().c_str(), kNobody, kNobody), 0);
    const auto store = Open(Address());
    const FileDescriptor watch(inotify_init1(IN_NONBLOCK | IN_CLOEXEC));
    ASSERT_GE(inotify_add_watch(watch.Get(), DataFile().c_str(), IN_OPEN | IN_CLOSE), 0);
    auto text = WriteRefusal(*store);
    EXPECT_TRUE(Has(text, "cannot write") && Has(text, command(DataFile()))) << text;
    char event[4096];
    EXPECT_EQ(read(watch.Get(), event, sizeof event), -1) << "the file was opened or closed";
    EXPECT_EQ(Get(*store, kKey, L"n"), "4:01000000");
    ASSERT_EQ(chown(DataFile().c_str(), kNobody, kNobody), 0);
    EXPECT_EQ(WriteRefusal(*store), "");
    // The lock file alone.
    ASSERT_EQ(chown(LockFile().c_str(), 0, 0), 0);
    EXPECT_EQ(InChild([&] {
                  const auto other = Open(Address());
                  const auto refusal = WriteRefusal(*other);
                  return Has(refusal, command(fs::canonical(LockFile()).string())) ? 0 : 1;
              }),
              0);
}

TEST_F(LmdbHardeningTest, ADirectoryOfOthersIsRefusedUnlessItIsTrusted)
{
    Create();
    for (const auto mode : {0720, 0702, 01777}) {
        ASSERT_EQ(chmod(Directory().c_str(), static_cast<mode_t>(mode)), 0);
        EXPECT_TRUE(Has(Refusal(), "WQSPCFG_TRUST_DIRECTORY") &&
                    Has(Refusal(), "chmod go-w '" + fs::canonical(Directory()).string() + "'"))
            << Refusal();
        ASSERT_EQ(setenv("WQSPCFG_TRUST_DIRECTORY", "1", 1), 0);
        EXPECT_EQ(Refusal(), "") << mode;
        unsetenv("WQSPCFG_TRUST_DIRECTORY");
    }
    if (geteuid() != 0) {
        GTEST_SKIP() << "the rest needs the superuser";
    }
    ASSERT_EQ(chmod(Directory().c_str(), 0755), 0);
    ASSERT_EQ(chown(Directory().c_str(), 1234, 1234), 0);
    EXPECT_EQ(InChild([&] { return BecomeNobody() && Has(Refusal(), "1234") ? 0 : 1; }), 0);
}

TEST_F(LmdbHardeningTest, ANewStoreIsItsMakersAloneOrSharedByItsDirectory)
{
    const auto mode = [](const std::string& path) { return static_cast<unsigned>(fs::status(path).permissions()); };
    Create();
    EXPECT_EQ(mode(Directory()), 0700U);
    EXPECT_EQ(mode(DataFile()), 0600U);
    EXPECT_EQ(mode(LockFile()), 0600U);
    fs::remove_all(Directory());
    if (geteuid() != 0) {
        GTEST_SKIP() << "the rest needs the superuser";
    }
    constexpr gid_t kGroup = 4321;
    const TrustTheStore trust;
    fs::create_directory(Directory());
    ASSERT_EQ(chown(Directory().c_str(), 0, kGroup), 0);
    ASSERT_EQ(chmod(Directory().c_str(), 02750), 0);
    Create();
    EXPECT_EQ(mode(DataFile()), 0660U);
    EXPECT_EQ(mode(LockFile()), 0660U);
    EXPECT_EQ(InChild([&] {
                  if (!BecomeNobody(kGroup)) {
                      return 10;
                  }
                  Error error;
                  const auto store = OpenStore(Address(), {}, error);
                  return store && store->Begin(Access::Write, error) ? 0 : 1;
              }),
              0);
}

TEST_F(LmdbHardeningTest, AStoreThatCannotBeMadeWholeLeavesNothing)
{
    const auto make = [this](rlim_t most) {
        return InChild([&] {
            const rlimit limit{most, most}; // of a file, as on a file system that is nearly full
            Error error;
            (void)signal(SIGXFSZ, SIG_IGN);
            if (setrlimit(RLIMIT_FSIZE, &limit) != 0) {
                return 10;
            }
            return OpenStore(Address(), {.create = true}, error) ? 0 : error.kind == ErrorKind::NoSpace ? 1 : 2;
        });
    };
    // No room for the data file; for the data file only; for both.
    EXPECT_EQ(make(4096), 1);
    EXPECT_TRUE(fs::is_empty(Directory()));
    EXPECT_EQ(make(20000), 1);
    EXPECT_TRUE(fs::is_empty(Directory()));
    EXPECT_EQ(make(40000), 0);
    EXPECT_EQ(std::distance(fs::directory_iterator(Directory()), {}), 2);
    // One that was there stays.
    fs::remove(LockFile());
    EXPECT_EQ(make(20000), 1);
    EXPECT_TRUE(fs::exists(DataFile()));
}

TEST_F(LmdbHardeningTest, AReaderWithoutTheLockFileSeesOneState)
{
    if (geteuid() != 0) {
        GTEST_SKIP() << "needs the superuser";
    }
    constexpr int kValues = 400;
    const auto save = [](Store& store, std::uint32_t generation) {
        const auto transaction = Begin(store, Access::Write);
        KeyId key = 0;
        ASSERT_EQ(transaction->CreateKey(Hive::LocalMachine, kKey, key), Outcome::Found);
        for (int i = 0; i < kValues; ++i) {
            ASSERT_EQ(transaction->SetValue(key, std::to_wstring(i), {ValueType::Dword, DwordBytes(generation)}),
                      Outcome::Found);
        }
        ASSERT_EQ(transaction->Commit(true), Outcome::Found);
    };
    const auto store = Open(Address(), {.create = true});
    save(*store, 0);
    ASSERT_EQ(chmod(Directory().c_str(), 0755), 0);
    ASSERT_EQ(chmod(DataFile().c_str(), 0644), 0);
    Steps reader([&](const std::function<void()>& pause) {
        Error error;
        if (!BecomeNobody()) {
            return 10;
        }
        const auto own = OpenStore(Address(), {}, error);
        for (int i = 0; i < 5; ++i) {
            const auto transaction = own ? own->Begin(Access::Read, error) : nullptr;
            if (!transaction) {
                return 1;
            }
            ValueView value;
            std::uint32_t first = 0;
            std::uint32_t number = 0;
            for (int v = 0; v < kValues; ++v) {
                if (transaction->QueryAt(Hive::LocalMachine, kKey, std::to_wstring(v), value) != Outcome::Found) {
                    return 2;
                }
                std::memcpy(&number, value.data.data(), sizeof number);
                if (v == 0) {
                    first = number;
                    pause(); // while others save
                } else if (number != first) {
                    return 3;
                }
            }
            if (first != static_cast<std::uint32_t>(i * 6)) {
                return 4; // and it is the last one
            }
        }
        return 0;
    });
    for (std::uint32_t round = 0; round < 5; ++round) {
        for (std::uint32_t i = 1; i <= 6; ++i) {
            save(*store, round * 6 + i);
        }
        if (round < 4) {
            reader.Next();
        }
    }
    EXPECT_EQ(reader.Finish(), 0);
}

TEST_F(LmdbHardeningTest, ARemovedLockFileIsNoticed)
{
    Create();
    {
        Steps other([this](const std::function<void()>& pause) {
            const auto store = Open(Address());
            const auto reader = Begin(*store, Access::Read);
            pause();
            return 0;
        });
        const auto store = Open(Address());
        fs::remove(LockFile());
        Error error;
        EXPECT_FALSE(store->Begin(Access::Write, error));
        EXPECT_TRUE(Has(error.message, std::to_string(other.Id())) && Has(error.message, "lock.mdb")) << error.message;
        EXPECT_EQ(InChild([&] { return Has(Refusal(), std::to_string(other.Id())) ? 0 : 1; }), 0);
    }
    // Once nobody is left who holds the old one, work goes on.
    const auto store = Open(Address());
    fs::remove(LockFile());
    Put(*store, kKey, L"n", DwordBytes(2));
    EXPECT_EQ(Get(*store, kKey, L"n"), "4:02000000");
    const auto reader = Begin(*store, Access::Read);
    fs::remove(LockFile());
    Error error;
    EXPECT_FALSE(store->Begin(Access::Write, error));
    EXPECT_TRUE(Has(error.message, "lock.mdb")) << error.message;
}

TEST_F(LmdbHardeningTest, AnotherCopyOfTheLibraryInTheProcessIsNoticed)
{
    const auto backup = temporary.File("backup");
    BackupCounts counts;
    std::string kept;
    Error error;
    Create();
    ASSERT_TRUE(BackUpStore(Address(), backup, counts, error)) << error.message;
    // What another copy does first: it tells by a lock of its own that this process uses the store.
    for (const auto& path : {LockFile(), DataFile()}) {
        const FileDescriptor other(open(path.c_str(), O_RDWR | O_CLOEXEC));
        struct flock lock = {};
        lock.l_type = F_WRLCK;
        lock.l_start = (off_t{1} << 50) + 1 + (off_t{1} << 22) + getpid();
        lock.l_len = 1;
        ASSERT_EQ(fcntl(other.Get(), F_OFD_SETLK, &lock), 0);
        // And LMDB in it by one of this process: by it others know that their readers count.
        const FileDescriptor lockFile(open(LockFile().c_str(), O_RDWR | O_CLOEXEC));
        lock.l_type = F_RDLCK;
        lock.l_start = 0;
        ASSERT_EQ(fcntl(lockFile.Get(), F_SETLK, &lock), 0);
        EXPECT_TRUE(Has(Refusal(), "another copy of this library")) << path;
        const auto content = ReadFile(DataFile());
        fs::resize_file(DataFile(), 5000);
        EXPECT_FALSE(RestoreStore(Address(), backup, counts, kept, error));
        EXPECT_TRUE(Has(error.message, "another copy of this library")) << error.message;
        WriteFile(DataFile(), content);
        EXPECT_FALSE(RemoveNewStore(Address()));
        EXPECT_EQ(InChild([&] {
                      lock.l_type = F_WRLCK;
                      lock.l_start = 0;
                      return fcntl(lockFile.Get(), F_GETLK, &lock) == 0 && lock.l_pid == getppid() ? 0 : 1;
                  }),
                  0)
            << "this process's locks are gone: " << path;
        lock.l_type = F_UNLCK;
        ASSERT_EQ(fcntl(lockFile.Get(), F_SETLK, &lock), 0);
        EXPECT_EQ(InChild([&] { return Has(Refusal(), "its lock file") == (path == DataFile()) ? 0 : 1; }), 0);
    }
}

TEST_F(LmdbHardeningTest, WhoMayOnlyReadTheStoreKeepsNobodyFromIt)
{
    const auto mask = umask(022);
    const TrustTheStore trust;
    Create();
    ASSERT_EQ(chmod(DataFile().c_str(), 0664), 0);
    fs::remove(LockFile());
    Put(*Open(Address()), kKey, L"n", DwordBytes(2));
    EXPECT_TRUE(Rights(LockFile()).ends_with(" 660")) << Rights(LockFile());
    ASSERT_EQ(chmod(LockFile().c_str(), 0644), 0);
    Put(*Open(Address()), kKey, L"n", DwordBytes(3));
    EXPECT_TRUE(Rights(LockFile()).ends_with(" 600")) << Rights(LockFile());
    umask(mask);

    const FileDescriptor other(open(DataFile().c_str(), O_RDONLY | O_CLOEXEC));
    struct flock lock = {};
    lock.l_type = F_RDLCK; // of the whole file and all behind it
    ASSERT_EQ(fcntl(other.Get(), F_OFD_SETLK, &lock), 0);
    SetLockTimeout(std::chrono::milliseconds(0));
    const auto store = Open(Address());
    Put(*store, kKey, L"n", DwordBytes(4));
    EXPECT_EQ(InChild([this] { return Get(*Open(Address()), kKey, L"n") == "4:04000000" ? 0 : 1; }), 0);
    StoreStatus status;
    Error error;
    EXPECT_TRUE(GetStoreStatus(Address(), false, status, error)) << error.message;
    EXPECT_EQ(status.writer, 0);
}

TEST_F(LmdbHardeningTest, AWriterTellsWhomItWaitsForAndGivesUp)
{
    Create();
    const auto store = Open(Address());
    Steps other([this](const std::function<void()>& pause) {
        const auto own = Open(Address());
        const auto writer = Begin(*own, Access::Write);
        pause();
        return 0;
    });
    std::vector<LockWait> told;
    SetLockWaitHandler([&told](const LockWait& wait) { told.push_back(wait); });
    Error error;
    SetLockTimeout(std::chrono::milliseconds(0));
    EXPECT_FALSE(store->Begin(Access::Write, error));
    EXPECT_TRUE(Has(error.message, "process " + std::to_string(other.Id()))) << error.message;
    EXPECT_TRUE(told.empty());
    SetLockTimeout(std::chrono::milliseconds(1500));
    EXPECT_FALSE(store->Begin(Access::Write, error));
    ASSERT_EQ(told.size(), 1U);
    EXPECT_EQ(told[0].process, other.Id());
    EXPECT_EQ(told[0].address, Address());
    EXPECT_EQ(Get(*store, kKey, L"n"), "4:01000000"); // readers do not wait
    EXPECT_EQ(other.Finish(), 0);
    Put(*store, kKey, L"n", DwordBytes(2));

    // A thread of the process itself.
    const auto writer = Begin(*store, Access::Write);
    SetLockTimeout(std::chrono::milliseconds(0));
    std::thread([&] {
        EXPECT_FALSE(store->Begin(Access::Write, error));
        EXPECT_TRUE(Has(error.message, "another thread")) << error.message;
    }).join();
}

TEST_F(LmdbHardeningTest, AChildOfAForkAmongReadingThreadsGoesOn)
{
    Create();
    SetCurrentStore(Open(Address()));
    std::atomic<bool> isDone{false};
    const CRegInfo config(L"Svc", true);
    FileLog log(temporary.File("log"));
    // All that this library does under a lock of its own, but for writing.
    const auto work = [&] {
        const ReadScope scope;
        ValueView value;
        (void)config.GetVersion();
        return log.Write(Severity::Info, 1, L"entry") == 1 && scope->QueryAt(kKey, L"n", value) == Outcome::Found;
    };
    const auto start = [&](std::vector<std::thread>& threads) {
        for (int i = 0; i < 2; ++i) {
            threads.emplace_back([&] {
                while (!isDone) {
                    (void)work();
                }
            });
        }
    };
    const auto end = [&](std::vector<std::thread>& threads) {
        isDone = true;
        for (auto& thread : threads) {
            thread.join();
        }
    };
    const auto allAreWell = [&](int children) {
        bool isWell = true;
        for (int i = 0; i < children && isWell; ++i) {
            isWell = InChild([&] { return work() ? 0 : 1; }) == 0;
        }
        return isWell;
    };
    std::vector<std::thread> readers;
    start(readers);
    EXPECT_TRUE(allAreWell(300));
    // A child with threads forks too; the thread sanitizer ends a child that starts one.
    if (!kThreadSanitized) {
        EXPECT_EQ(InChild([&] {
                      std::vector<std::thread> threads;
                      start(threads);
                      const auto isWell = allAreWell(100);
                      end(threads);
                      return isWell ? 0 : 1;
                  }),
                  0);
    }
    end(readers);
}

TEST_F(LmdbHardeningTest, AClosedStoreIsUnlockedWhoeverHasACopyOfItsFile)
{
    Create();
    auto store = Open(Address());
    // As a child is for a moment, before the library knows of the fork.
    const auto child = static_cast<pid_t>(syscall(SYS_clone, SIGCHLD, 0, 0, 0, 0));
    if (child == 0) {
        for (;;) {
            pause();
        }
    }
    Put(*store, kKey, L"n", DwordBytes(2));
    const auto isLocked = [](const std::string& path) {
        // As LMDB's locks belong to the process, this one must not open the lock file.
        return InChild([&path] {
            const FileDescriptor file(open(path.c_str(), O_RDWR | O_CLOEXEC));
            struct flock lock = {};
            lock.l_type = F_WRLCK;
            lock.l_whence = SEEK_SET;
            return fcntl(file.Get(), F_OFD_GETLK, &lock) != 0 || lock.l_type != F_UNLCK ? 1 : 0;
        });
    };
    EXPECT_EQ(isLocked(DataFile()), 1); // marked as in use
    EXPECT_EQ(isLocked(LockFile()), 1);
    store.reset();
    EXPECT_EQ(isLocked(DataFile()), 0);
    EXPECT_EQ(isLocked(LockFile()), 0);
    kill(child, SIGKILL);
    EXPECT_EQ(Ended(child), -SIGKILL);
}

TEST_F(LmdbHardeningTest, AChildInAnotherDirectoryFindsTheSameStore)
{
    Create();
    const auto here = fs::current_path();
    fs::current_path(temporary.Path());
    const auto store = Open("lmdb:store");
    EXPECT_EQ(InChild([&] { return chdir("/") == 0 && Get(*store, kKey, L"n") == "4:01000000" ? 0 : 1; }), 0);
    fs::current_path(here);
}

TEST_F(LmdbHardeningTest, OpensWithLittleAddressSpace)
{
    if (kSanitized) {
        GTEST_SKIP() << "sanitizers take the address space themselves";
    }
    Create();
    for (const auto gigabytes : {1U, 4U, 40U, 100U}) {
        EXPECT_EQ(InChild([&] {
                      const rlimit limit{rlim_t{gigabytes} << 30, RLIM_INFINITY};
                      if (setrlimit(RLIMIT_AS, &limit) != 0) {
                          return 10;
                      }
                      const auto store = Open(Address());
                      Put(*store, kKey, L"n", DwordBytes(7));
                      return Get(*store, kKey, L"n") == "4:07000000" ? 0 : 1;
                  }),
                  0);
    }
}

TEST_F(LmdbHardeningTest, TooLittleAddressSpaceIsAnError)
{
    if (kSanitized) {
        GTEST_SKIP() << "sanitizers take the address space themselves";
    }
    const auto used = [] {
        std::size_t pages = 0;
        std::ifstream("/proc/self/statm") >> pages;
        return pages * static_cast<std::size_t>(getpagesize());
    };
    Put(*Open(Address(), {.create = true}), kKey, L"n", Bytes(std::size_t{30} << 20), ValueType::Binary);
    int written = 0;
    int refused = 0;
    for (std::size_t spare = 8; spare <= 1024; spare += spare / 4) {
        const auto result = InChild([&] {
            const Bytes data(std::size_t{9} << 20);
            const rlimit limit{used() + (spare << 20), RLIM_INFINITY};
            Error error;
            auto store = setrlimit(RLIMIT_AS, &limit) == 0 ? OpenStore(Address(), {}, error) : nullptr;
            // The first one finds the map full, or nearly so.
            for (int tries = 0; store && tries < 2; ++tries) {
                const auto transaction = store->Begin(Access::Write, error);
                KeyId key = 0;
                if (transaction && transaction->CreateKey(Hive::LocalMachine, kKey, key) == Outcome::Found &&
                    transaction->SetValue(key, L"m", {ValueType::Binary, data}) == Outcome::Found &&
                    transaction->Commit(true) != Outcome::Failed) {
                    return 0;
                }
                error = transaction ? transaction->LastError() : error;
            }
            return !error.message.empty() ? 1 : 2;
        });
        written += result == 0;
        refused += result == 1;
        EXPECT_TRUE(result == 0 || result == 1) << spare << " MB: " << result;
    }
    EXPECT_GT(written, 0);
    EXPECT_GT(refused, 0);
    // Another process, which is allowed all, makes the file larger than the map.
    Put(*Open(Address("grown"), {.create = true}), kKey, L"n", DwordBytes(1));
    Steps limited([&](const std::function<void()>& pause) {
        const rlimit limit{used() + (std::size_t{160} << 20), RLIM_INFINITY};
        if (setrlimit(RLIMIT_AS, &limit) != 0) {
            return 9;
        }
        const auto store = Open(Address("grown"));
        const auto reads = [&] { return Get(*store, kKey, L"n") == "4:01000000"; };
        if (!reads()) {
            return 1;
        }
        pause();
        if (!reads()) {
            return 2;
        }
        pause();
        Put(*store, kKey, L"n", DwordBytes(2));
        return Get(*store, kKey, L"n") == "4:02000000" ? 0 : 3;
    });
    for (const auto* name : {L"m", L"o"}) {
        Put(*Open(Address("grown")), kKey, name, Bytes(std::size_t{25} << 20), ValueType::Binary);
        if (name[0] == L'm') {
            limited.Next();
        }
    }
    EXPECT_EQ(limited.Finish(), 0);
    EXPECT_EQ(InChild([&] {
                  const rlimit limit{used() + (std::size_t{48} << 20), RLIM_INFINITY};
                  CompactCounts counts;
                  BackupCounts saved;
                  std::string kept;
                  Error error;
                  const auto small = Address("small");
                  const auto backup = temporary.File("backup");
                  Put(*Open(small, {.create = true}), kKey, L"n", DwordBytes(1));
                  return setrlimit(RLIMIT_AS, &limit) == 0 && CompactStore(small, counts, error) &&
                                 BackUpStore(small, backup, saved, error) &&
                                 RestoreStore(small, backup, saved, kept, error)
                             ? 0
                             : 1;
              }),
              0);
}

TEST_F(LmdbHardeningTest, ReadersAtRestGiveTheirPlacesToOthers)
{
    Create();
    const auto store = Open(Address());
    std::vector<std::unique_ptr<Transaction>> readers;
    Error error;
    while (auto reader = store->Begin(Access::Read, error)) {
        readers.push_back(std::move(reader));
    }
    EXPECT_GT(readers.size(), 500U);
    // Who they are is told just then, in this process and in another one, which can write, too.
    const auto tell = [&] {
        StoreStatus status;
        return GetStoreStatus(Address(), true, status, error) && status.isSound && status.counts.values == 1 &&
                       status.readers.size() == readers.size()
                   ? 0
                   : 1;
    };
    EXPECT_EQ(tell(), 0) << error.message;
    EXPECT_EQ(InChild(tell), 0);
    EXPECT_EQ(InChild([this] {
                  Put(*Open(Address()), kKey, L"n", DwordBytes(1));
                  return 0;
              }),
              0);
    const auto all = readers.size();
    readers.clear();
    // A process at rest keeps one place.
    EXPECT_EQ(InChild([&] {
                  const auto own = Open(Address());
                  while (auto reader = own->Begin(Access::Read, error)) {
                      readers.push_back(std::move(reader));
                  }
                  return readers.size() == all - 1 ? 0 : 1;
              }),
              0);
}

TEST_F(LmdbHardeningTest, OnlyAFileThatIsAsItsLastWriterLeftItIsNotVerified)
{
    const auto isMarked = [this] {
        LmdbMark mark;
        const FileDescriptor lock(open(LockFile().c_str(), O_RDONLY | O_CLOEXEC));
        const FileDescriptor data(open(DataFile().c_str(), O_RDONLY | O_CLOEXEC));
        struct stat status = {};
        return ReadMark(lock, mark) && fstat(data.Get(), &status) == 0 &&
               mark.IsOf(MarkOf(status, LastTransaction(data))) && mark.process == getpid();
    };
    Create();
    EXPECT_TRUE(isMarked());
    {
        const auto store = Open(Address());
        (void)Begin(*store, Access::Write); // given up
    }
    EXPECT_TRUE(isMarked());
    auto content = ReadFile(DataFile());
    content += std::string(4096, '\0');
    std::fill(content.begin() + 8192, content.end() - 4096, 'x');
    WriteFile(DataFile(), content);
    EXPECT_FALSE(isMarked());
    Error error;
    EXPECT_FALSE(Open(Address())->Begin(Access::Write, error));
    EXPECT_EQ(error.kind, ErrorKind::Damaged);
}

TEST_F(LmdbHardeningTest, TheMarkOfALastWriterIsBelievedInASharedStoreToo)
{
    {
        const auto store = Open(Address(), {.create = true});
        const auto transaction = Begin(*store, Access::Write);
        KeyId key = 0;
        ASSERT_EQ(transaction->CreateKey(Hive::LocalMachine, kKey, key), Outcome::Found);
        for (int i = 0; i < 1000; ++i) {
            ASSERT_EQ(transaction->SetValue(key, L"Value" + std::to_wstring(i), {ValueType::Dword, DwordBytes(1)}),
                      Outcome::Found);
        }
        ASSERT_EQ(transaction->Commit(true), Outcome::Found);
    }
    const TrustTheStore trust;
    // A leaf is spoilt, and the mark says that nothing happened.
    auto content = ReadFile(DataFile());
    const auto at = content.rfind("VALUE500");
    ASSERT_NE(at, std::string::npos);
    std::fill_n(content.begin() + static_cast<std::ptrdiff_t>(at / 4096 * 4096 + 16), 512, '\xf0');
    WriteFile(DataFile(), content);
    const auto write = [this](const std::function<void(LmdbMark&)>& spoil = {}) {
        const FileDescriptor lock(open(LockFile().c_str(), O_RDWR | O_CLOEXEC));
        const FileDescriptor data(open(DataFile().c_str(), O_RDONLY | O_CLOEXEC));
        struct stat status = {};
        EXPECT_EQ(fstat(data.Get(), &status), 0);
        auto mark = MarkOf(status, LastTransaction(data));
        if (spoil) {
            spoil(mark);
        }
        WriteMark(lock, mark);
        Error error;
        return Open(Address())->Begin(Access::Write, error) ? ErrorKind::None : error.kind;
    };
    EXPECT_EQ(write(), ErrorKind::None);
    for (const auto& path : {DataFile(), LockFile()}) {
        ASSERT_EQ(chmod(path.c_str(), 0660), 0);
        EXPECT_EQ(write(), ErrorKind::None) << path;
    }
    if (geteuid() == 0) {
        GiveAway();
        EXPECT_EQ(write(), ErrorKind::None) << "the superuser trusts its users";
    }
    // Of another state of the file it is not.
    for (const auto& spoil : {std::function<void(LmdbMark&)>([](LmdbMark& mark) { ++mark.inode; }),
                              std::function<void(LmdbMark&)>([](LmdbMark& mark) { mark.size += 4096; }),
                              std::function<void(LmdbMark&)>([](LmdbMark& mark) { --mark.modified; }),
                              std::function<void(LmdbMark&)>([](LmdbMark& mark) { --mark.changed; }),
                              std::function<void(LmdbMark&)>([](LmdbMark& mark) { --mark.transaction; })}) {
        EXPECT_EQ(write(spoil), ErrorKind::Damaged);
    }
}

} // namespace wqspcfg::test
