#include "support/StoreTesting.h"
#include "wqspcfg/platform/store/AtomicFile.h"
#include "wqspcfg/platform/store/PosixFile.h"

#include <csignal>
#include <functional>
#include <sys/inotify.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace wqspcfg::test {

namespace {

namespace fs = std::filesystem;

class AtomicFileTest : public testing::Test
{
  protected:
    bool Write(const std::string& path, std::string_view content, const std::vector<std::string>& sources = {})
    {
        AtomicFile file;
        return file.Open(path, sources, error) && file.Write(content, error) && file.Commit(error);
    }

    void Make(const std::string& path, unsigned mode, uid_t owner = geteuid(), gid_t group = getegid())
    {
        WriteFile(path, "old");
        ASSERT_EQ(chown(path.c_str(), owner, group), 0);
        ASSERT_EQ(chmod(path.c_str(), mode), 0);
    }

    static std::string Rights(const std::string& path)
    {
        struct stat status = {};
        EXPECT_EQ(lstat(path.c_str(), &status), 0) << path;
        char text[64];
        (void)snprintf(text, sizeof text, "%u:%u %o", status.st_uid, status.st_gid, status.st_mode & 0777U);
        return text;
    }

    std::string Path() const { return temporary.File("file"); }

    TemporaryDirectory temporary;
    Error error;
};

int InChild(const std::function<int()>& work)
{
    const auto child = fork();
    if (child == 0) {
        _exit(work());
    }
    int status = 0;
    EXPECT_EQ(waitpid(child, &status, 0), child);
    return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
}

} // namespace

TEST_F(AtomicFileTest, AWriterThatIsKilledLeavesNothing)
{
    Make(Path(), 0644);
    EXPECT_EQ(InChild([&] {
                  AtomicFile file;
                  return file.Open(Path(), {}, error) && file.Write(std::string(300000, 'x'), error) ? raise(SIGKILL)
                                                                                                     : 1;
              }),
              -SIGKILL);
    EXPECT_EQ(ReadFile(Path()), "old");
    EXPECT_EQ(std::distance(fs::directory_iterator(temporary.Path()), {}), 1);
}

TEST_F(AtomicFileTest, TheNextWriterRemovesWhatKilledOnesHaveLeft)
{
    const auto temporaryFile = [this](std::string_view letters) {
        return temporary.File(".file.wqspcfg-") + std::string(letters);
    };
    const auto left = temporaryFile("0123456789ab");
    const auto inWork = temporaryFile("inwork000000");
    const auto second = temporaryFile("hardlink0000");
    const auto pipe = temporaryFile("pipe00000000");
    const auto foreign = temporaryFile("foreign00000");
    std::vector<std::string> kept{inWork,
                                  second,
                                  pipe,
                                  temporaryFile("link00000000"),
                                  temporaryFile("short"),
                                  temporaryFile("UPPERCASE000"),
                                  temporary.File(".file.20261125"),
                                  temporary.File(".file2.wqspcfg-0123456789ab"),
                                  temporary.File(".other.wqspcfg-0123456789ab")};
    for (const auto& path : {left, inWork, kept[4], kept[5], kept[6], kept[7], kept[8], temporary.File("victim")}) {
        WriteFile(path, "secret");
    }
    fs::create_hard_link(temporary.File("victim"), second);
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    fs::create_symlink("victim", kept[3]);
    if (geteuid() == 0) {
        Make(foreign, 0600, 65534, 65534);
        kept.push_back(foreign);
    }
    // As another writer does while it works.
    const FileDescriptor other(open(inWork.c_str(), O_RDWR | O_CLOEXEC));
    struct flock lock = {};
    lock.l_type = F_WRLCK;
    lock.l_len = 1;
    ASSERT_EQ(fcntl(other.Get(), F_OFD_SETLK, &lock), 0);
    ASSERT_TRUE(Write(Path(), "new")) << error.message;
    EXPECT_EQ(ReadFile(Path()), "new");
    EXPECT_FALSE(fs::exists(left));
    for (const auto& path : kept) {
        EXPECT_TRUE(fs::exists(fs::symlink_status(path))) << path;
    }
    EXPECT_EQ(ReadFile(temporary.File("victim")), "secret");
}

// Where the target is new there is no moment in which the file has another name.
TEST_F(AtomicFileTest, AFileIsLockedWhileItHasANameOfItsOwn)
{
    const FileDescriptor watch(inotify_init1(IN_NONBLOCK | IN_CLOEXEC));
    ASSERT_GE(inotify_add_watch(watch.Get(), temporary.Path().c_str(), IN_CREATE | IN_MOVED_FROM), 0);
    const auto names = [&watch] {
        alignas(inotify_event) char events[4096];
        std::string text;
        const auto size = read(watch.Get(), events, sizeof events);
        for (ssize_t at = 0; at < size;) {
            const auto* event = reinterpret_cast<const inotify_event*>(events + at);
            text += std::string(event->name).substr(0, 14) + ' ';
            at += static_cast<ssize_t>(sizeof(inotify_event) + event->len);
        }
        return text;
    };
    ASSERT_TRUE(Write(Path(), "new")) << error.message;
    const auto created = names();
    ASSERT_TRUE(Write(Path(), "newer")) << error.message;
    const auto replaced = names();
    const FileDescriptor nameless(open(temporary.Path().c_str(), O_TMPFILE | O_RDWR | O_CLOEXEC, 0600));
    if (!nameless) {
        GTEST_SKIP() << "this file system has no nameless files";
    }
    EXPECT_EQ(created, "file ");
    EXPECT_EQ(replaced, ".file.wqspcfg- .file.wqspcfg- ");
    // The lock is there before the name.
    AtomicFile file;
    ASSERT_TRUE(file.Open(Path(), {}, error)) << error.message;
    const FileDescriptor again(open(FileDescriptor(dup(file.Descriptor())).Path().c_str(), O_RDWR | O_CLOEXEC));
    struct flock lock = {};
    lock.l_type = F_WRLCK;
    lock.l_len = 1;
    EXPECT_NE(fcntl(again.Get(), F_OFD_SETLK, &lock), 0);
}

TEST_F(AtomicFileTest, FollowsNoLinkThatSomebodyElseCanPlant)
{
    const auto link = temporary.File("link");
    Make(Path(), 0600);
    fs::create_symlink("file", link);
    ASSERT_TRUE(Write(link, "new")) << error.message;
    EXPECT_TRUE(fs::is_symlink(link)); // one's own link stays a link
    EXPECT_EQ(ReadFile(Path()), "new");

    for (const auto* path : {"/dev/null", "/tmp", "", "/tmp/", "/missing/file"}) {
        EXPECT_FALSE(Write(path, "new")) << path;
    }
    fs::create_symlink("..", temporary.File("up"));
    const auto above = temporary.File("up/") + temporary.Path().filename().string() + "/file";
    ASSERT_TRUE(Write(above, "newer")) << error.message;
    fs::create_symlink("loop", temporary.File("loop"));
    EXPECT_FALSE(Write(temporary.File("loop"), "new"));
    if (geteuid() != 0) {
        GTEST_SKIP() << "links of other users need the superuser";
    }
    const auto isRefused = [this](const std::string& path) {
        return !Write(path, "planted") && error.kind == ErrorKind::AccessDenied && ReadFile(Path()) == "newer";
    };
    for (const auto mode : {0755U, 01777U}) {
        ASSERT_EQ(chmod(temporary.Path().c_str(), mode), 0);
        for (const auto* name : {"link", "up"}) {
            ASSERT_EQ(lchown(temporary.File(name).c_str(), 65534, 65534), 0);
        }
        EXPECT_TRUE(isRefused(link)) << error.message;
        EXPECT_TRUE(isRefused(above)) << "a link before the last name";
    }
    // Whose directory it is can put a link of the superuser there: by another name of it.
    ASSERT_EQ(chown(temporary.Path().c_str(), 65534, 65534), 0);
    ASSERT_EQ(lchown(link.c_str(), 0, 0), 0);
    EXPECT_TRUE(isRefused(link)) << error.message;
}

TEST_F(AtomicFileTest, NoSourceAndNoStoreIsReplaced)
{
    Make(Path(), 0600);
    const auto link = temporary.File("link");
    const auto other = temporary.File("other");
    fs::create_symlink("file", link);
    fs::create_hard_link(Path(), other);
    for (const auto& path : {Path(), link, other}) {
        EXPECT_FALSE(Write(path, "new", {"/etc/passwd", Path()})) << path;
        EXPECT_NE(error.message.find(path), std::string::npos) << error.message;
    }
    EXPECT_EQ(ReadFile(Path()), "old");
    const auto store = Open("lmdb:" + temporary.File("store"), {.create = true});
    const auto isLocked = [this] {
        const FileDescriptor file(open(temporary.File("store/lock.mdb").c_str(), O_RDWR | O_CLOEXEC));
        struct flock lock = {};
        lock.l_type = F_WRLCK;
        lock.l_len = 1;
        return fcntl(file.Get(), F_GETLK, &lock) == 0 && lock.l_pid == getppid() ? 0 : 1;
    };
    for (const auto* name : {"store/data.mdb", "store/lock.mdb"}) {
        // Reading the lock file here would drop the locks, too.
        const auto content = name == std::string_view("store/lock.mdb") ? "" : ReadFile(temporary.File(name));
        for (const auto replaces : {AtomicFile::Replaces::Files, AtomicFile::Replaces::Backups}) {
            AtomicFile file;
            EXPECT_FALSE(file.Open(temporary.File(name), {}, error, replaces));
            EXPECT_NE(error.message.find(name), std::string::npos) << error.message;
        }
        EXPECT_EQ(InChild(isLocked), 0) << "this process's locks on the store are gone";
        EXPECT_TRUE(content.empty() || content == ReadFile(temporary.File(name)));
    }
    fs::copy_file(temporary.File("store/data.mdb"), temporary.File("backup"));
    AtomicFile file;
    EXPECT_FALSE(file.Open(temporary.File("backup"), {}, error));
    EXPECT_TRUE(file.Open(temporary.File("backup"), {}, error, AtomicFile::Replaces::Backups)) << error.message;
}

TEST_F(AtomicFileTest, ItsRightsAreNoWiderThanThoseOfTheSourceAndOfTheOldFile)
{
    const auto source = temporary.File("source");
    const auto me = std::to_string(geteuid()) + ':' + std::to_string(getegid()) + ' ';
    struct Case
    {
        unsigned source; // 0: none
        unsigned old;
        const char* rights;
    };
    for (const auto& [sourceMode, oldMode, rights] :
         {Case{0, 0, "644"}, Case{0600, 0, "600"}, Case{0640, 0, "640"}, Case{0600, 0644, "600"},
          Case{0644, 0600, "600"}, Case{0664, 0640, "640"}, Case{0, 0755, "755"}, Case{0, 0600, "600"}}) {
        const auto mask = umask(022);
        fs::remove(Path());
        if (oldMode != 0) {
            Make(Path(), oldMode);
        }
        if (sourceMode != 0) {
            Make(source, sourceMode);
        }
        EXPECT_TRUE(Write(Path(), "new", {sourceMode != 0 ? source : ""})) << error.message;
        EXPECT_EQ(Rights(Path()), me + rights) << std::oct << sourceMode << ' ' << oldMode;
        umask(mask);
    }
    EXPECT_FALSE(Write(Path(), "new", {temporary.File("missing")}));

    // The narrowest of several, and of a source and its directory.
    const auto closed = temporary.File("closed");
    fs::create_directory(closed);
    for (const auto mode : {0700U, 0755U}) {
        const auto mask = umask(022);
        Make(source, 0644);
        Make(closed + "/source", 0644);
        ASSERT_EQ(chmod(closed.c_str(), mode), 0);
        fs::create_symlink(closed + "/source", temporary.File("link"));
        for (const auto& sources : {std::vector<std::string>{source, closed + "/source"}, {temporary.File("link")}}) {
            fs::remove(Path());
            ASSERT_TRUE(Write(Path(), "new", sources)) << error.message;
            EXPECT_EQ(Rights(Path()), me + (mode == 0700U ? "600" : "644"));
        }
        fs::remove(temporary.File("link"));
        umask(mask);
    }

    if (geteuid() != 0) {
        GTEST_SKIP() << "files of other users need the superuser";
    }
    // The superuser gives an old file back to its owner, unless he may not read the source.
    Make(Path(), 0600, 65534, 65534);
    ASSERT_TRUE(Write(Path(), "new"));
    EXPECT_EQ(Rights(Path()), "65534:65534 600");
    Make(source, 0600);
    ASSERT_TRUE(Write(Path(), "new", {source}));
    EXPECT_EQ(Rights(Path()), "0:65534 600");

    // A group that may read the source is not widened to the writer's own.
    ASSERT_EQ(chmod(temporary.Path().c_str(), 0777), 0);
    fs::remove(Path());
    Make(source, 0640, 1001, 2001);
    EXPECT_EQ(InChild([&] {
                  const bool dropped = setgid(3001) == 0 && setuid(1001) == 0;
                  return dropped && Write(Path(), "new", {source}) ? 0 : 1;
              }),
              0);
    EXPECT_EQ(Rights(Path()), "1001:3001 600");
}

TEST_F(AtomicFileTest, NoFileIsOpenAsAStandardFile)
{
    EXPECT_EQ(InChild([&] {
                  for (const int fd : {0, 1, 2}) {
                      close(fd);
                  }
                  AtomicFile file;
                  if (!file.Open(Path(), {}, error) || file.Descriptor() < 3 || !file.Write("right", error)) {
                      return 1;
                  }
                  if (write(1, "message", 7) == 7 || write(2, "message", 7) == 7) {
                      return 2;
                  }
                  return file.Commit(error) && FillStandardDescriptors() == 0 && write(1, "x", 1) == 1 ? 0 : 3;
              }),
              0);
    EXPECT_EQ(ReadFile(Path()), "right");
}

} // namespace wqspcfg::test
