#include "wqspcfg/platform/store/PosixTemporary.h"

#include <cerrno>
#include <random>
#include <string_view>
#include <sys/fsuid.h>
#include <sys/stat.h>
#include <unistd.h>

namespace wqspcfg {

namespace {

constexpr std::string_view kLetters = "abcdefghijklmnopqrstuvwxyz0123456789";
constexpr std::size_t kRandomLetters = 12;
constexpr int kMostTries = 100;

std::string TemporaryPrefix(const std::string& target)
{
    // Within what a file system takes for a name.
    return '.' + target.substr(0, 200) + ".wqspcfg-";
}

// A random name, unlike those of other programs' files.
std::string TemporaryName(const std::string& target)
{
    std::random_device random;
    auto name = TemporaryPrefix(target);
    for (std::size_t i = 0; i < kRandomLetters; ++i) {
        name += kLetters[random() % kLetters.size()];
    }
    return name;
}

// The first byte, which nothing else locks. An errno value, or 0.
int Lock(const FileDescriptor& file)
{
    struct flock lock = {};
    lock.l_type = F_WRLCK;
    lock.l_whence = SEEK_SET;
    lock.l_len = 1;
    return fcntl(file.Get(), F_OFD_SETLK, &lock) != 0 ? errno : 0;
}

bool IsLeftover(const struct stat& status)
{
    constexpr auto kNone = static_cast<uid_t>(-1);
    return S_ISREG(status.st_mode) && status.st_nlink == 1 && status.st_uid == static_cast<uid_t>(setfsuid(kNone));
}

void RemoveLeftover(int directory, const char* name)
{
    struct stat named = {};
    struct stat open = {};
    // Looked at before it is opened, as opening some files has effects.
    if (fstatat(directory, name, &named, AT_SYMLINK_NOFOLLOW) != 0 || !IsLeftover(named)) {
        return;
    }
    const auto file = OpenAt(directory, name, O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY);
    if (file && fstat(file.Get(), &open) == 0 && IsLeftover(open) && open.st_ino == named.st_ino &&
        open.st_dev == named.st_dev && Lock(file) == 0) {
        (void)unlinkat(directory, name, 0);
    }
}

// False when somebody has taken a file with a name for a leftover just now.
bool MarkInWork(const FileDescriptor& file, bool hasName)
{
    const auto status = Lock(file);
    struct stat now = {};
    // Where there are no locks nobody can tell a leftover, and none is removed.
    return status != EAGAIN && status != EACCES && fstat(file.Get(), &now) == 0 && (now.st_nlink > 0 || !hasName);
}

void RemoveLeftovers(int directory, const std::string& target)
{
    const auto prefix = TemporaryPrefix(target);
    (void)VisitNames(OpenAt(directory, ".", O_RDONLY | O_DIRECTORY), [&](const char* each) {
        const std::string_view name(each);
        const bool isOurs = name.size() == prefix.size() + kRandomLetters && name.starts_with(prefix) &&
                            name.find_first_not_of(kLetters, prefix.size()) == std::string_view::npos;
        if (isOurs) {
            RemoveLeftover(directory, each);
        }
        return true;
    });
}

} // namespace

FileDescriptor MakeTemporary(int directory, const std::string& target, mode_t mode, std::string& name)
{
    name.clear();
    RemoveLeftovers(directory, target);
#if defined(O_TMPFILE)
    auto nameless = OpenAt(directory, ".", O_TMPFILE | O_RDWR, mode);
    // Without /proc it could never get a name.
    if (nameless && access(nameless.Path().c_str(), F_OK) == 0 && MarkInWork(nameless, false)) {
        return nameless;
    }
#endif
    for (int tries = 0; tries < kMostTries; ++tries) {
        name = TemporaryName(target);
        auto file = OpenAt(directory, name.c_str(), O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW, mode);
        if (file && MarkInWork(file, true)) {
            return file;
        }
        if (!file && errno != EEXIST) {
            break;
        }
        errno = EEXIST;
    }
    name.clear();
    return FileDescriptor();
}

int PlaceTemporary(int directory, const FileDescriptor& file, std::string& name, const std::string& target,
                   bool replace)
{
    const auto link = [&](const std::string& as) {
        const auto status = name.empty()
                                ? linkat(AT_FDCWD, file.Path().c_str(), directory, as.c_str(), AT_SYMLINK_FOLLOW)
                                : linkat(directory, name.c_str(), directory, as.c_str(), 0);
        return status == 0 ? 0 : errno;
    };
    if (name.empty() || !replace) {
        auto status = link(target);
        if (!name.empty() && (status == 0 || status == EEXIST)) {
            if (unlinkat(directory, name.c_str(), 0) == 0) {
                name.clear();
            }
            return status;
        }
        if (name.empty() && (status != EEXIST || !replace)) {
            return status;
        }
        // A link replaces nothing: the file gets a name of its own for a moment. Some file systems have no links; there
        // it has one.
        for (int tries = 0; name.empty() && status == EEXIST && tries < kMostTries; ++tries) {
            const auto fresh = TemporaryName(target);
            status = link(fresh);
            if (status == 0) {
                name = fresh;
            }
        }
        if (name.empty()) {
            return status;
        }
    }
    if (renameat(directory, name.c_str(), directory, target.c_str()) != 0) {
        return errno;
    }
    name.clear();
    return 0;
}

} // namespace wqspcfg
