// Causes that come and go: no space, no rights, no directory. Each gives a clear error and leaves the old state intact,
// and work goes on in the same process when the cause is gone.
#include "endurance/Scenario.h"
#include "wqspcfg/platform/store/Backup.h"

#include <cerrno>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <grp.h>
#include <sched.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace wqspcfg::endurance {

namespace {

namespace fs = std::filesystem;

constexpr uid_t kNobody = 65534;

std::string System(const char* what)
{
    return std::string(what) + ": " + std::strerror(errno);
}

// Empty when `error` is of this kind and names the store; what is wrong otherwise.
std::string Expect(const Error& error, ErrorKind kind, const std::string& directory)
{
    if (error.kind == kind && error.message.find(directory) != std::string::npos) {
        return {};
    }
    return error ? "the error is not clear: " + error.message : "there is no error";
}

// The first of the answers that is not empty.
class Steps
{
  public:
    Steps& Then(const char* step, const std::string& why)
    {
        if (m_failure.empty() && !why.empty()) {
            m_failure = std::string(step) + ": " + why;
        }
        return *this;
    }
    Steps& ThenSaved(const char* step, Dispenser& config, std::uint32_t generation)
    {
        return Then(step, Save(config, generation).message)
            .Then(step, m_failure.empty() ? ExpectGeneration(generation, generation) : "");
    }
    Steps& ThenRefused(const char* step, Dispenser& config, ErrorKind kind, const std::string& directory)
    {
        return Then(step, Expect(Save(config, 1000), kind, directory));
    }
    const std::string& Failure() const { return m_failure; }

  private:
    std::string m_failure;
};

std::string BecomeNobody()
{
    return setgroups(0, nullptr) == 0 && setresgid(kNobody, kNobody, kNobody) == 0 &&
                   setresuid(kNobody, kNobody, kNobody) == 0
               ? std::string()
               : System("cannot give up the superuser's rights");
}

// Gives everything in a folder, and the folder, to one user.
std::string Own(const std::string& directory, uid_t user, mode_t directoryMode)
{
    bool done = chown(directory.c_str(), user, user) == 0 && chmod(directory.c_str(), directoryMode) == 0;
    for (const auto& entry : fs::directory_iterator(directory)) {
        done = done && chown(entry.path().c_str(), user, user) == 0;
    }
    return done ? std::string() : System("chown");
}

std::string MakeReadable(const std::string& directory)
{
    return chmod(directory.c_str(), 0755) == 0 && chmod((directory + "/data.mdb").c_str(), 0644) == 0 ? std::string()
                                                                                                      : System("chmod");
}

// Mounts a small file system that goes with this process. Why it cannot, or empty.
std::string MountSmall(const std::string& directory)
{
    if (unshare(CLONE_NEWNS) != 0) {
        return System("unshare");
    }
    if (mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0 ||
        mount("tmpfs", directory.c_str(), "tmpfs", 0, "size=4m") != 0) {
        return System("mount");
    }
    return {};
}

// Takes up all room that is left, but for `rest` bytes.
std::string FillUp(const std::string& path, off_t rest)
{
    const int file = open(path.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
    if (file < 0) {
        return System("open");
    }
    const std::string block(4096, 'x');
    off_t size = 0;
    for (ssize_t written = 0; (written = write(file, block.data(), block.size())) > 0;) {
        size += written;
    }
    const bool done = errno == ENOSPC && ftruncate(file, size - rest) == 0;
    close(file);
    return done ? std::string() : System("filling the file system");
}

// Saves until the file would have to grow: while another process holds an old state, its pages are not used again.
Error SaveUntilFull(const std::string& directory, Dispenser& config, std::uint32_t& last)
{
    Child holder([&directory](const Channel& channel) { return HoldState(directory, channel); });
    if (!holder.Receive(std::chrono::seconds(30))) {
        return {ErrorKind::Io, "a process to hold a state: " + holder.Wait(std::chrono::milliseconds(1))};
    }
    for (int i = 0; i < 200; ++i) {
        if (auto error = Save(config, last + 1)) {
            return error;
        }
        ++last;
    }
    return {};
}

std::string UseFullFileSystem(const std::string& mounted)
{
    const auto directory = mounted + "/store";
    const auto ballast = mounted + "/ballast";
    const auto backup = mounted + "/backup";
    Steps steps;
    steps.Then("making the store", MakeStoreInChild(directory, 1)).Then("opening it", UseStore(directory).message);
    BackupCounts counts;
    Error error;
    if (!BackUpStore("lmdb:" + directory, backup, counts, error)) {
        steps.Then("backing up", error.message);
    }
    const auto oldBackup = ReadWhole(backup);
    Dispenser config;
    std::uint32_t last = 1;
    for (const off_t rest : {0, 4096, 16384, 40960}) {
        steps.Then("filling up", FillUp(ballast, rest))
            .Then("saving without space", Expect(SaveUntilFull(directory, config, last), ErrorKind::NoSpace, directory))
            .Then("the state after a failed Save", ExpectGeneration(last, last))
            .Then("the state for a new process", InChild([&] {
                      const auto opened = UseStore(directory);
                      return opened ? opened.message : ExpectGeneration(last, last);
                  }));
        if (BackUpStore("lmdb:" + directory, backup, counts, error)) {
            steps.Then("backing up without space", rest < 40960 ? "there is no error" : "");
        } else {
            steps.Then("backing up without space", Expect(error, ErrorKind::NoSpace, backup))
                .Then("the old backup", ReadWhole(backup) == oldBackup ? "" : "it is no longer what it was");
        }
        steps
            .Then("creating a store without space", InChild([&] {
                      const auto none = mounted + "/none";
                      const auto refused = UseStore(none, true);
                      const bool isLeft = fs::exists(none + "/data.mdb");
                      fs::remove_all(none);
                      return rest >= 16384 && !refused ? ""
                             : isLeft                  ? "half a store is left"
                                                       : Expect(refused, ErrorKind::NoSpace, none);
                  }))
            .Then("removing the ballast", unlink(ballast.c_str()) == 0 ? "" : System("unlink"))
            .ThenSaved("saving with space again", config, last + 1);
        ++last;
    }
    return steps.Failure();
}

std::string UseLimitedFile(const std::string& directory)
{
    (void)signal(SIGXFSZ, SIG_IGN);
    Steps steps;
    steps.Then("making the store", MakeStoreInChild(directory, 1)).Then("opening it", UseStore(directory).message);
    Dispenser config;
    std::uint32_t last = 1;
    const auto limitTo = [](rlim_t size) {
        const rlimit limit{size, RLIM_INFINITY};
        return setrlimit(RLIMIT_FSIZE, &limit) == 0 ? std::string() : System("setrlimit");
    };
    for (const rlim_t rest : {0U, 4096U, 16384U}) {
        steps.Then("limiting the file", limitTo(fs::file_size(directory + "/data.mdb") + rest))
            .Then("saving without space", Expect(SaveUntilFull(directory, config, last), ErrorKind::NoSpace, directory))
            .Then("the state after a failed Save", ExpectGeneration(last, last))
            .Then("lifting the limit", limitTo(RLIM_INFINITY))
            .ThenSaved("saving with space again", config, last + 1);
        ++last;
    }
    return steps.Failure();
}

} // namespace

Result FullFileSystemScenario(const Plan&)
{
    const Scratch scratch;
    const auto cannot = InChild([&] { return MountSmall(scratch.Path().string()); });
    const auto why = InChild([&] {
        if (!cannot.empty()) {
            return UseLimitedFile(scratch / "store");
        }
        auto failure = MountSmall(scratch.Path().string());
        return failure.empty() ? UseFullFileSystem(scratch.Path().string()) : failure;
    });
    if (!why.empty()) {
        return Failed(why);
    }
    return {{},
            cannot.empty() ? "four times with different rests of space"
                           : "three times with a limit on the file's length",
            cannot.empty() ? "" : "a full file system (" + cannot + ')'};
}

Result ReadOnlyFileScenario(const Plan&)
{
    const Scratch scratch;
    const auto directory = scratch / "store";
    const auto data = directory + "/data.mdb";
    if (geteuid() == 0 && chmod(scratch.Path().c_str(), 0755) != 0) {
        return Failed(System("chmod"));
    }
    const auto why = InChild([&] {
        Steps steps;
        steps.Then("making the store", MakeStoreInChild(directory, 1));
        if (geteuid() == 0) {
            steps.Then("giving it away", Own(directory, kNobody, 0755)).Then("dropping rights", BecomeNobody());
        }
        const auto makeReadOnly = [&data](mode_t mode) {
            return chmod(data.c_str(), mode) == 0 ? std::string() : System("chmod");
        };
        steps.Then("making it read-only", makeReadOnly(0444)).Then("opening it", UseStore(directory).message);
        Dispenser config;
        return steps.Then("loading", ExpectGeneration(1, 1))
            .ThenRefused("saving", config, ErrorKind::AccessDenied, directory)
            .Then("loading after that", ExpectGeneration(1, 1))
            .Then("making it writable", makeReadOnly(0644))
            .ThenSaved("saving once it is writable", config, 2)
            .Failure();
    });
    return why.empty() ? Result{{}, "a Save refused, and done once the file was writable", {}} : Failed(why);
}

Result ReadOnlyMountScenario(const Plan&)
{
    const Scratch scratch;
    const auto mounted = scratch.Path().string();
    const auto directory = scratch / "store";
    if (const auto cannot = InChild([&] { return MountSmall(mounted); }); !cannot.empty()) {
        return {{}, {}, cannot};
    }
    const auto why = InChild([&] {
        const auto remount = [&mounted](unsigned long flags) {
            return mount(nullptr, mounted.c_str(), nullptr, MS_REMOUNT | flags, nullptr) == 0 ? std::string()
                                                                                              : System("mount");
        };
        Steps steps;
        steps.Then("mounting", MountSmall(mounted))
            .Then("making the store", MakeStoreInChild(directory, 1))
            .Then("mounting it read-only", remount(MS_RDONLY))
            .Then("opening it", UseStore(directory).message);
        Dispenser config;
        return steps.Then("loading", ExpectGeneration(1, 1))
            .ThenRefused("saving", config, ErrorKind::AccessDenied, directory)
            .Then("loading after that", ExpectGeneration(1, 1))
            .Then("mounting it for writing", remount(0))
            .ThenSaved("saving once it is writable", config, 2)
            .Failure();
    });
    return why.empty() ? Result{{}, "a Save refused, and done once the file system was writable", {}} : Failed(why);
}

Result ForeignOwnerScenario(const Plan&)
{
    if (geteuid() != 0) {
        return {{}, {}, "only the superuser can give files away"};
    }
    const Scratch scratch;
    const auto directory = scratch / "store";
    auto why = MakeStoreInChild(directory, 1);
    if (why.empty() && (chmod(scratch.Path().c_str(), 0755) != 0 || chmod(directory.c_str(), 0700) != 0)) {
        why = System("chmod");
    }
    if (!why.empty()) {
        return Failed(why);
    }
    const auto before = ReadWhole(directory + "/data.mdb");
    // The child tells of each step, and goes on when the rights are as the step needs them.
    constexpr auto kStep = std::chrono::seconds(30);
    int signals[2];
    if (pipe(signals) != 0) {
        return Failed(System("pipe"));
    }
    Child child([&](const Channel& channel) {
        const auto next = [&] {
            channel.Send(0);
            char byte = 0;
            return read(signals[0], &byte, 1) == 1 ? std::string() : System("read");
        };
        (void)setenv("WQSPCFG_STORE", ("lmdb:" + directory).c_str(), 1);
        Steps steps;
        steps.Then("dropping rights", BecomeNobody());
        SetCurrentStore(nullptr); // it is opened anew by whoever needs it next
        Dispenser config;
        bool isInLog = false;
        const auto denied = Load(config, &isInLog);
        return steps.Then("loading without rights", Expect(denied, ErrorKind::AccessDenied, directory))
            .Then("its line in the log", isInLog ? "" : "there is none")
            .ThenRefused("saving without rights", config, ErrorKind::AccessDenied, directory)
            .Then("waiting", next())
            .Then("loading what is readable", ExpectGeneration(1, 1))
            .ThenRefused("saving to what is readable", config, ErrorKind::AccessDenied, directory)
            .Then("waiting", next())
            .ThenSaved("saving once the store is one's own", config, 2)
            .Failure();
    });
    const auto proceed = [&]() { return write(signals[1], "", 1) == 1 ? std::string() : System("write"); };
    Steps steps;
    const auto await = [&] {
        if (steps.Failure().empty() && !child.Receive(kStep)) {
            steps.Then("the other user", child.Wait(std::chrono::milliseconds(1)));
            steps.Then("the other user", "ended early");
        }
    };
    await();
    steps.Then("the file", ReadWhole(directory + "/data.mdb") == before ? "" : "it was changed")
        .Then("making it readable", MakeReadable(directory))
        .Then("going on", proceed());
    await();
    steps.Then("giving it away", Own(directory, kNobody, 0755)).Then("going on", proceed());
    if (steps.Failure().empty()) {
        steps.Then("the other user", child.Wait(kStep));
    }
    close(signals[0]);
    close(signals[1]);
    // The superuser has made no lock file of his own meanwhile.
    steps.Then("the superuser's Load", InChild([&] {
                   const auto error = UseStore(directory);
                   return error ? error.message : ExpectGeneration(2, 2);
               }));
    return steps.Failure().empty() ? Result{{}, "refused, read and written as the rights went from none to all", {}}
                                   : Failed(steps.Failure());
}

Result RemovedDirectoryScenario(const Plan&)
{
    const Scratch scratch;
    const auto directory = scratch / "store";
    const auto moved = scratch / "moved";
    const auto backup = scratch / "backup";
    const auto why = InChild([&] {
        Steps steps;
        steps.Then("making the store", MakeStore(directory, 1));
        BackupCounts counts;
        Error error;
        (void)BackUpStore("lmdb:" + directory, backup, counts, error);
        steps.Then("backing up", error.message);
        Dispenser config;
        fs::rename(directory, moved);
        steps.ThenRefused("saving without the directory", config, ErrorKind::NotFound, directory);
        bool isInLog = false;
        Dispenser fresh;
        steps.Then("loading without it", Expect(Load(fresh, &isInLog), ErrorKind::NotFound, directory))
            .Then("its line in the log", isInLog ? "" : "there is none")
            .Then("the directory", fs::exists(directory) ? "it was made anew, empty" : "");
        fs::rename(moved, directory);
        steps.Then("loading with the directory back", ExpectGeneration(1, 1)).ThenSaved("saving", config, 2);
        fs::remove_all(directory);
        return steps.ThenRefused("saving to what was deleted", config, ErrorKind::NotFound, directory)
            .Then("restoring in another process", InChild([&] {
                      std::string kept;
                      Error failure;
                      (void)RestoreStore("lmdb:" + directory, backup, counts, kept, failure);
                      return failure.message;
                  }))
            .Then("loading what was restored", ExpectGeneration(1, 1))
            .ThenSaved("saving to it", config, 3)
            .Failure();
    });
    return why.empty() ? Result{{}, "moved away and back, deleted and restored", {}} : Failed(why);
}

} // namespace wqspcfg::endurance
