#include "wqspcfg/platform/store/PosixTarget.h"

#include <algorithm>
#include <cerrno>
#include <linux/magic.h>
#include <sys/sysmacros.h>
#include <sys/vfs.h>
#include <unistd.h>

namespace wqspcfg {

namespace {

bool IsTrusted(uid_t owner)
{
    return owner == geteuid() || owner == 0;
}

bool IsTerminalOrNull(const struct stat& status)
{
    const auto type = major(status.st_rdev);
    constexpr unsigned kMemory = 1;
    constexpr unsigned kNull = 3;
    return S_ISCHR(status.st_mode) && ((type == kMemory && minor(status.st_rdev) == kNull) || type == 4 || type == 5 ||
                                       (type >= 136 && type <= 143));
}

bool IsInProc(const FileDescriptor& directory)
{
    struct statfs system = {};
    return fstatfs(directory.Get(), &system) == 0 && system.f_type == PROC_SUPER_MAGIC;
}

bool IsSpecialFile(const struct stat& status)
{
    return !S_ISREG(status.st_mode) && !S_ISDIR(status.st_mode) && !S_ISLNK(status.st_mode);
}

// An errno value, or 0.
int ReadLink(const FileDescriptor& directory, const std::string& name, std::string& content)
{
    content.assign(4096, '\0');
    const auto size = readlinkat(directory.Get(), name.c_str(), content.data(), content.size());
    if (size <= 0 || static_cast<std::size_t>(size) == content.size()) {
        return size < 0 ? errno : ELOOP;
    }
    content.resize(static_cast<std::size_t>(size));
    return 0;
}

FileDescriptor Beginning(const std::string& path)
{
    return OpenFile(path.starts_with('/') ? "/" : ".", O_PATH | O_DIRECTORY);
}

} // namespace

bool PosixTarget::IsSpecial() const
{
    return status && IsSpecialFile(*status);
}

FileDescriptor PosixTarget::OpenSpecial(const std::string& path, Error& error) const
{
    const auto flags = O_WRONLY | O_NOCTTY;
    FileDescriptor file;
    if (isOwnDescriptor) {
        file = OpenAt(directory.Get(), name.c_str(), flags);
    } else {
        // Looked at before it is opened: opening a pipe waits for its reader.
        const auto node = OpenAt(directory.Get(), name.c_str(), O_PATH | O_NOFOLLOW);
        struct stat now = {};
        if (node && fstat(node.Get(), &now) == 0 && (now.st_dev != status->st_dev || now.st_ino != status->st_ino)) {
            error = {ErrorKind::Io, "cannot write " + path + ": another file was put in its place"};
            return FileDescriptor();
        }
        file = node ? OpenFile(node.Path(), flags) : FileDescriptor();
    }
    if (!file) {
        error = SystemError("write", path, errno);
    }
    return file;
}

bool FindTarget(const std::string& path, PosixTarget& target, Error& error)
{
    constexpr int kMostLinks = 40;
    const auto fail = [&](int status) {
        error = SystemError("write", path, status);
        return false;
    };
    const auto refuse = [&](const std::string& why) {
        error = {ErrorKind::AccessDenied, path + why};
        return false;
    };
    target = {};
    auto rest = path;
    target.directory = Beginning(rest);
    for (int links = 0; target.directory;) {
        rest.erase(0, std::min(rest.find_first_not_of('/'), rest.size()));
        if (rest.empty()) {
            return fail(EISDIR);
        }
        const auto end = std::min(rest.find('/'), rest.size());
        target.name = rest.substr(0, end);
        rest.erase(0, end);
        const bool isLast = rest.empty();
        struct stat status = {};
        struct stat folder = {};
        if (fstat(target.directory.Get(), &folder) != 0) {
            return fail(errno);
        }
        if (fstatat(target.directory.Get(), target.name.c_str(), &status, AT_SYMLINK_NOFOLLOW) != 0) {
            return (isLast && errno == ENOENT) || fail(errno);
        }
        if (S_ISLNK(status.st_mode)) {
            if (!IsTrusted(status.st_uid) || !IsTrusted(folder.st_uid)) {
                return refuse(" leads over the link " + target.name +
                              " of another user, or in a directory of another user, which is not followed; give the "
                              "file itself");
            }
            struct stat open = {};
            if (isLast && IsInProc(target.directory) &&
                fstatat(target.directory.Get(), target.name.c_str(), &open, 0) == 0 && IsSpecialFile(open)) {
                target.status = open;
                target.isOwnDescriptor = true;
                return true;
            }
            std::string content;
            const auto result = ++links > kMostLinks ? ELOOP : ReadLink(target.directory, target.name, content);
            if (result != 0) {
                return fail(result);
            }
            if (content.front() == '/') {
                target.directory = Beginning(content);
            }
            rest = content + rest;
            continue;
        }
        if (!isLast) {
            target.directory = OpenAt(target.directory.Get(), target.name.c_str(), O_PATH | O_DIRECTORY | O_NOFOLLOW);
            continue;
        }
        target.status = status;
        const bool isOwnPipe = S_ISFIFO(status.st_mode) && status.st_uid == geteuid();
        if (IsSpecialFile(status) && !isOwnPipe && !IsTerminalOrNull(status) &&
            (!IsTrusted(status.st_uid) || !IsTrusted(folder.st_uid))) {
            return refuse(" is no regular file, and it or its directory belongs to another user, who could read what "
                          "is written; give another file");
        }
        return true;
    }
    return fail(errno);
}

} // namespace wqspcfg
