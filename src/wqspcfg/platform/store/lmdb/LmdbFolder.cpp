#include "wqspcfg/platform/store/lmdb/LmdbFolder.h"

#include "wqspcfg/platform/store/PosixTemporary.h"
#include "wqspcfg/platform/store/lmdb/LmdbFiles.h"
#include "wqspcfg/platform/store/lmdb/LmdbFormat.h"
#include "wqspcfg/platform/text/DisplayText.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <grp.h>
#include <sys/fsuid.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace wqspcfg {

namespace {

bool IsSet(const char* variable)
{
    const auto* text = secure_getenv(variable);
    return text != nullptr && std::strcmp(text, "1") == 0;
}

// Makes the directory and its parents, each durable in the one above. An errno value, or 0.
int MakeDirectories(const std::string& path)
{
    constexpr mode_t kOwn = 0700;
    constexpr mode_t kParent = 0755;
    for (std::size_t end = 0; end != std::string::npos;) {
        end = path.find('/', end + 1);
        const auto part = path.substr(0, end);
        if (part.find_first_not_of('/') == std::string::npos) {
            continue;
        }
        const auto isLast = path.find_first_not_of('/', part.size()) == std::string::npos;
        if (mkdir(part.c_str(), isLast ? kOwn : kParent) == 0) {
            const auto slash = part.find_last_of('/');
            const auto parent =
                OpenFile(slash == std::string::npos ? "." : part.substr(0, slash + 1), O_RDONLY | O_DIRECTORY);
            if (!parent || fsync(parent.Get()) != 0) {
                return errno;
            }
        } else if (errno != EEXIST) {
            return errno;
        }
        if (isLast) {
            break;
        }
    }
    return 0;
}

std::string ChownCommand(uid_t owner, const std::string& path)
{
    return "chown " + std::to_string(owner) + ' ' + ShellWord(path);
}

// For the superuser. `what` may be written by others, as its status tells.
std::string DescribeOthers(const struct stat& status, const std::string& what)
{
    const auto owner = std::to_string(status.st_uid);
    const bool isOwned = status.st_uid != 0;
    const auto who = isOwned                           ? "user number " + owner
                     : (status.st_mode & S_IWOTH) != 0 ? "everybody"
                                                       : "group number " + std::to_string(status.st_gid);
    return who + " may write to " + what +
           ", and whoever may write to a store can take over the processes that use it, this one with all the "
           "superuser's rights; run this as " +
           (isOwned ? "that user (runuser -u \"$(id -nu " + owner + ")\" -- wqspcfg ...)"
                    : "a user who may write to it (runuser -u USER -- wqspcfg ...)") +
           ", or set WQSPCFG_TRUST_STORE=1 if you trust them with this system";
}

// The group to act with in a directory: never the superuser's, which the directory may have kept.
gid_t GroupOf(const struct stat& directory)
{
    constexpr gid_t kNoGroup = 65534;
    return directory.st_gid == 0 ? kNoGroup : directory.st_gid;
}

// glibc gives new groups to all threads of the process.
int SetGroupsOfThread(const std::vector<gid_t>& groups)
{
#if defined(SYS_setgroups32)
    return static_cast<int>(syscall(SYS_setgroups32, groups.size(), groups.data()));
#else
    return static_cast<int>(syscall(SYS_setgroups, groups.size(), groups.data()));
#endif
}

} // namespace

StoreFile KindOfStoreFile(const FileDescriptor& file)
{
    std::array<std::uint32_t, 5> head{};
    if (!file || pread(file.Get(), head.data(), sizeof head, 0) != static_cast<ssize_t>(sizeof head)) {
        return StoreFile::None;
    }
    if (head[0] == lmdb::kMagic) {
        return StoreFile::Lock;
    }
    return head[sizeof(lmdb::PageHeader) / sizeof head[0]] == lmdb::kMagic ? StoreFile::Data : StoreFile::None;
}

bool LmdbFolder::Open(const std::string& address, const std::string& path, bool create, Error& error)
{
    m_path = path;
    m_directory = wqspcfg::OpenFile(path, O_PATH | O_DIRECTORY);
    if (!m_directory && errno == ENOENT && create) {
        if (const auto status = MakeDirectories(path); status != 0) {
            error = LmdbError(address, "create", path, status);
            return false;
        }
        m_directory = wqspcfg::OpenFile(path, O_PATH | O_DIRECTORY);
    }
    if (!m_directory || fstat(m_directory.Get(), &m_status) != 0) {
        error = LmdbError(address, "open", path, errno);
        return false;
    }
    const auto self = geteuid();
    m_isTrusted = IsSet("WQSPCFG_TRUST_DIRECTORY");
    m_isCareful = self == 0 && !IsSet("WQSPCFG_TRUST_STORE");
    if (m_isTrusted) {
        return true;
    }
    const auto refuse = [&](const std::string& why) {
        error = {ErrorKind::AccessDenied,
                 ErrorPrefix(address) + path + ' ' + why + ", or set WQSPCFG_TRUST_DIRECTORY=1 if you trust them"};
        return false;
    };
    if (self != 0 && m_status.st_uid != self && m_status.st_uid != 0) {
        return refuse(
            "belongs to another user (number " + std::to_string(m_status.st_uid) +
            "), who could have any file of yours written to; use a directory of your own or of the superuser");
    }
    if ((m_status.st_mode & (S_IWGRP | S_IWOTH)) != 0) {
        return refuse("can be written by other users, as older versions allowed, and they could have any file of yours "
                      "written to; take that right away (chmod go-w " +
                      ShellWord(path) + ')');
    }
    return true;
}

std::string LmdbFolder::WhoElseWrites() const
{
    if (!m_isCareful) {
        return {};
    }
    for (const auto* name : {"", kDataName, kLockName}) {
        struct stat status = {};
        const bool isDirectory = *name == '\0';
        if (fstatat(Get(), name, &status, AT_SYMLINK_NOFOLLOW | (isDirectory ? AT_EMPTY_PATH : 0)) != 0) {
            if (errno == ENOENT && !isDirectory) {
                continue;
            }
            return "who may write to it cannot be told: " + LmdbWords(errno);
        }
        if (!S_ISLNK(status.st_mode) && IsOfOthers(status)) {
            return DescribeOthers(status, isDirectory ? m_path : PathOf(name));
        }
    }
    return {};
}

bool LmdbFolder::CheckMaking(const std::string& address, Error& error) const
{
    auto who = WhoElseWrites();
    if (who.empty() && m_isCareful && (NewFileMode() & S_IWGRP) != 0) {
        auto shared = m_status;
        shared.st_mode |= S_IWGRP;
        who = DescribeOthers(shared, "the files of a new store in " + m_path);
    }
    if (!who.empty()) {
        error = {ErrorKind::AccessDenied, ErrorPrefix(address) + "cannot make a store in " + m_path + ": " + who};
    }
    return who.empty();
}

std::string LmdbFolder::OpenPath() const
{
    const auto path = m_directory.Path();
    return access(path.c_str(), F_OK) == 0 ? path : m_path;
}

FileDescriptor LmdbFolder::OpenFile(const char* name, int flags) const
{
    return OpenAt(Get(), name, flags | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY);
}

bool LmdbFolder::CheckFile(const std::string& address, const char* name, const FileDescriptor& file, Error& error) const
{
    const auto path = PathOf(name);
    struct stat status = {};
    if (fstat(file.Get(), &status) != 0) {
        error = LmdbError(address, "open", path, errno);
        return false;
    }
    if (!S_ISREG(status.st_mode)) {
        error = {ErrorKind::BadArgument, ErrorPrefix(address) + path + " is not a regular file"};
        return false;
    }
    if (m_isTrusted) {
        return true;
    }
    // Whoever makes the file may still be about to take its first name away.
    constexpr int kLooks = 25;
    for (int looks = 0; status.st_nlink > 1 && looks < kLooks; ++looks) {
        usleep(2000);
        (void)fstat(file.Get(), &status);
    }
    if (status.st_nlink > 1 && !IsKept(name, status)) {
        error = {ErrorKind::AccessDenied, ErrorPrefix(address) + path +
                                              " has a second name (a hard link) and may be another file of yours; copy "
                                              "it, and put the copy in its place while no process uses the store"};
        return false;
    }
    if (status.st_uid != 0 && status.st_uid != geteuid() && status.st_uid != m_status.st_uid) {
        error = {ErrorKind::AccessDenied,
                 ErrorPrefix(address) + path + " belongs to a user (number " + std::to_string(status.st_uid) +
                     ") who owns neither the directory nor this process; give it to the directory's owner (" +
                     ChownCommand(m_status.st_uid, path) + ')'};
        return false;
    }
    return true;
}

// A restore that was killed has left it, and its link to the file that it was about to replace.
bool LmdbFolder::IsKept(const char* name, const struct stat& status) const
{
    struct stat kept = {};
    return status.st_nlink == 2 &&
           fstatat(Get(), (std::string(name) + kKeptSuffix).c_str(), &kept, AT_SYMLINK_NOFOLLOW) == 0 &&
           kept.st_dev == status.st_dev && kept.st_ino == status.st_ino;
}

std::string LmdbFolder::WhyRefused(const char* name, int status) const
{
    auto words = LmdbWords(status);
    struct stat file = {};
    if ((status == EACCES || status == EPERM) && fstatat(Get(), name, &file, AT_SYMLINK_NOFOLLOW) == 0 &&
        file.st_uid != m_status.st_uid) {
        words += "; it belongs to user number " + std::to_string(file.st_uid) + " and its directory to user number " +
                 std::to_string(m_status.st_uid) + ", with whose rights the store is used; run `" +
                 ChownCommand(m_status.st_uid, PathOf(name)) + "` as the superuser";
    }
    return words;
}

bool LmdbFolder::GetModel(struct stat& model, int& status) const
{
    const auto file = OpenFile(kDataName, O_PATH);
    status = file && fstat(file.Get(), &model) == 0 ? 0 : errno;
    if (status != 0 || !S_ISREG(model.st_mode)) {
        return false;
    }
    const bool isOurs = model.st_uid == 0 || model.st_uid == geteuid() || model.st_uid == m_status.st_uid;
    return m_isTrusted || (isOurs && (model.st_nlink == 1 || IsKept(kDataName, model)));
}

FileDescriptor LmdbFolder::MakeFile(std::string& name) const
{
    auto file = MakeTemporary(Get(), kDataName, NewFileMode(), name);
    if (file && fchmod(file.Get(), NewFileMode()) != 0) {
        return FileDescriptor();
    }
    return file;
}

int LmdbFolder::Place(const FileDescriptor& file, std::string& name, bool replace) const
{
    return PlaceTemporary(Get(), file, name, kDataName, replace);
}

int LmdbFolder::Sync() const
{
    const auto directory = OpenAt(Get(), ".", O_RDONLY | O_DIRECTORY);
    return !directory || fsync(directory.Get()) != 0 ? errno : 0;
}

ActAsOwner::ActAsOwner(const LmdbFolder& folder)
{
    const auto& owner = folder.m_status;
    m_isNeeded = geteuid() == 0 && owner.st_uid != 0 && !folder.m_isTrusted;
    if (!m_isNeeded) {
        return;
    }
    m_groups.resize(static_cast<std::size_t>(std::max(getgroups(0, nullptr), 0)));
    if (getgroups(static_cast<int>(m_groups.size()), m_groups.data()) < 0 || SetGroupsOfThread({}) != 0) {
        return;
    }
    m_isDone = true;
    (void)setfsgid(GroupOf(owner));
    (void)setfsuid(owner.st_uid);
}

ActAsOwner::~ActAsOwner()
{
    if (m_isDone) {
        const auto kept = errno;
        (void)setfsuid(geteuid());
        (void)setfsgid(getegid());
        (void)SetGroupsOfThread(m_groups);
        errno = kept;
    }
}

int ActAsOwner::Give(const FileDescriptor& file, const struct stat& model) const
{
    struct stat own = {};
    if (fstat(file.Get(), &own) != 0) {
        return errno;
    }
    if (!m_isDone) {
        const auto owner = geteuid() == 0 && own.st_uid != model.st_uid ? model.st_uid : static_cast<uid_t>(-1);
        return fchown(file.Get(), owner, model.st_gid) != 0 ? errno : 0;
    }
    const auto owner = static_cast<uid_t>(setfsuid(geteuid()));
    const auto status = fchown(file.Get(), static_cast<uid_t>(-1), model.st_gid) != 0 ? errno : 0;
    (void)setfsuid(owner);
    return status;
}

bool ActAsOwner::Check(const std::string& address, const LmdbFolder& folder, Error& error) const
{
    constexpr uid_t kNone = static_cast<uid_t>(-1);
    if (!m_isNeeded || (m_isDone && static_cast<uid_t>(setfsuid(kNone)) == folder.m_status.st_uid &&
                        static_cast<gid_t>(setfsgid(kNone)) == GroupOf(folder.m_status))) {
        return true;
    }
    error = {ErrorKind::AccessDenied, ErrorPrefix(address) + folder.Path() + " belongs to user number " +
                                          std::to_string(folder.m_status.st_uid) +
                                          ", whose rights this process cannot take on; run as that user"};
    return false;
}

} // namespace wqspcfg
