#include "wqspcfg/platform/store/AtomicFile.h"

#include "wqspcfg/platform/store/PosixFile.h"
#include "wqspcfg/platform/store/PosixTarget.h"
#include "wqspcfg/platform/store/PosixTemporary.h"
#include "wqspcfg/platform/store/lmdb/LmdbFolder.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <optional>
#include <sys/stat.h>
#include <unistd.h>

namespace wqspcfg {

namespace {

constexpr mode_t kRights = 0777;
constexpr mode_t kSearch = 1;

// What the members of `group`, and everybody else, may do with the file.
mode_t GroupRights(const struct stat& file, gid_t group)
{
    const auto asGroup = (file.st_mode >> 3) & 7U;
    const auto asOther = file.st_mode & 7U;
    return file.st_gid == group ? asGroup : asGroup & asOther; // some may be members of its group, too
}

mode_t OtherRights(const struct stat& file, gid_t group)
{
    return file.st_mode & (file.st_gid == group ? 7U : (file.st_mode >> 3) & 7U);
}

bool IsHiveFile(const FileDescriptor& file)
{
    constexpr std::string_view kSignature = "regf";
    char head[kSignature.size()];
    return file && pread(file.Get(), &head[0], sizeof head, 0) == static_cast<ssize_t>(sizeof head) &&
           std::string_view(&head[0], sizeof head) == kSignature;
}

} // namespace

struct AtomicFile::Source
{
    std::string path;
    struct stat file = {};
    struct stat folder = {};
};

struct AtomicFile::State
{
    std::string path; // as messages give it
    std::string name; // of the target in its directory
    FileDescriptor directory;
    std::vector<Source> sources;
    std::optional<struct stat> old; // what stands there when it is begun
    FileDescriptor file;
    std::string temporary; // the file's name while it is not in its place; empty without one
    std::string buffer;
    Error failure; // of a write

    State() = default;
    ~State()
    {
        if (!temporary.empty()) {
            (void)unlinkat(directory.Get(), temporary.c_str(), 0);
        }
    }
    State(const State&) = delete;
    State& operator=(const State&) = delete;

    bool Find(Replaces replaces, Error& error);
    std::string StoreFileAt(Replaces replaces) const;
    int Restrict();
    int Flush();
    int TakePlace();
};

// Follows links to the file that is to be replaced.
bool AtomicFile::State::Find(Replaces replaces, Error& error)
{
    PosixTarget target;
    if (!FindTarget(path, target, error)) {
        return false;
    }
    name = target.name;
    directory = OpenAt(target.directory.Get(), ".", O_RDONLY | O_DIRECTORY);
    if (!directory) {
        error = SystemError("write", path, errno);
        return false;
    }
    if (!target.status) {
        return true;
    }
    old = target.status;
    if (!S_ISREG(old->st_mode)) {
        error = {ErrorKind::BadArgument, path + " is not a regular file"};
        return false;
    }
    for (const auto& source : sources) {
        if (source.file.st_dev == old->st_dev && source.file.st_ino == old->st_ino) {
            error = {ErrorKind::BadArgument,
                     path + " is the file that is read, " + source.path + ", and is not replaced; give another file"};
            return false;
        }
    }
    const auto what = StoreFileAt(replaces);
    if (!what.empty()) {
        error = {ErrorKind::BadArgument, path + " is " + what + ", and is not replaced; give another file"};
    }
    return what.empty();
}

// What file of a registry stands in the target's place; empty for none.
std::string AtomicFile::State::StoreFileAt(Replaces replaces) const
{
    // It is not opened: closing it would drop the locks of this process, which may have the store open.
    if (name == kLockName && faccessat(directory.Get(), kDataName, F_OK, AT_SYMLINK_NOFOLLOW) == 0) {
        return "the lock file of an embedded store";
    }
    const auto there = OpenAt(directory.Get(), name.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_NOCTTY);
    if (IsHiveFile(there)) {
        return "a file of the Windows registry"; // a hive or its transaction log
    }
    const auto kind = KindOfStoreFile(there);
    if (kind != StoreFile::Data) {
        return kind == StoreFile::Lock ? "the lock file of an embedded store" : "";
    }
    const bool isInUse = name == kDataName && faccessat(directory.Get(), kLockName, F_OK, AT_SYMLINK_NOFOLLOW) == 0;
    return isInUse                         ? "the data file of an embedded store"
           : replaces == Replaces::Backups ? ""
                                           : "an embedded store or its backup";
}

// Gives the file, which is this user's alone while it is written, its owner, group and rights. An errno value, or 0.
int AtomicFile::State::Restrict()
{
    struct stat fresh = {};
    if (fstat(file.Get(), &fresh) != 0) {
        return errno;
    }
    if (sources.empty() && !old) {
        const auto mask = umask(077);
        umask(mask);
        return fchmod(file.Get(), 0666 & ~mask) != 0 ? errno : 0;
    }
    // Whom it cannot be given to, it is not; the rights below reckon with what it became.
    const auto& model = old ? *old : sources.front().file;
    const bool isOldOwners = old && std::all_of(sources.begin(), sources.end(), [this](const Source& source) {
                                 return source.file.st_uid == old->st_uid;
                             });
    if (isOldOwners && old->st_uid != fresh.st_uid) {
        (void)!fchown(file.Get(), old->st_uid, static_cast<gid_t>(-1));
    }
    if (model.st_gid != fresh.st_gid) {
        (void)!fchown(file.Get(), static_cast<uid_t>(-1), model.st_gid);
    }
    if (fstat(file.Get(), &fresh) != 0) {
        return errno;
    }
    mode_t group = 7;
    mode_t other = 7;
    const auto limit = [&](const struct stat& by) {
        group &= GroupRights(by, fresh.st_gid);
        other &= OtherRights(by, fresh.st_gid);
    };
    if (old) {
        limit(*old);
    }
    for (const auto& source : sources) {
        limit(source.file);
        // Who cannot search the source's directory cannot read the source.
        group &= (GroupRights(source.folder, fresh.st_gid) & kSearch) != 0 ? 7U : 0U;
        other &= (OtherRights(source.folder, fresh.st_gid) & kSearch) != 0 ? 7U : 0U;
    }
    auto rights = (old ? old->st_mode & 0700 : mode_t{0600}) | mode_t{0600} | group << 3 | other;
    if (!old) {
        const auto mask = umask(077);
        umask(mask);
        rights &= ~mask & 0666;
    }
    return fchmod(file.Get(), rights & kRights) != 0 ? errno : 0;
}

// An errno value, or 0.
int AtomicFile::State::Flush()
{
    const auto status = WriteAll(file, buffer);
    if (status == 0) {
        buffer.clear();
    }
    return status;
}

// An errno value, or 0.
int AtomicFile::State::TakePlace()
{
    if (const auto status = Restrict(); status != 0) {
        return status;
    }
    if (fsync(file.Get()) != 0) {
        return errno;
    }
    if (const auto status = PlaceTemporary(directory.Get(), file, temporary, name, true); status != 0) {
        return status;
    }
    return fsync(directory.Get()) != 0 ? errno : 0;
}

AtomicFile::AtomicFile() = default;
AtomicFile::~AtomicFile() = default;

bool AtomicFile::Open(const std::string& path, const std::vector<std::string>& sources, Error& error, Replaces replaces)
{
    auto state = std::make_unique<State>();
    state->path = path;
    for (const auto& source : sources) {
        if (source.empty()) {
            continue;
        }
        auto& each = state->sources.emplace_back();
        each.path = source;
        std::error_code code;
        const auto folder = std::filesystem::canonical(source, code).parent_path();
        if (stat(source.c_str(), &each.file) != 0 || stat(folder.c_str(), &each.folder) != 0) {
            error = SystemError("read the rights of", source, errno);
            return false;
        }
    }
    if (!state->Find(replaces, error)) {
        return false;
    }
    constexpr mode_t kOwnOnly = 0600;
    state->file = MakeTemporary(state->directory.Get(), state->name, kOwnOnly, state->temporary);
    if (!state->file) {
        error = SystemError("write", path, errno);
        return false;
    }
    m_state = std::move(state);
    return true;
}

bool AtomicFile::Write(std::string_view bytes, Error& error)
{
    constexpr std::size_t kBuffer = std::size_t{1} << 16;
    if (!m_state) {
        error = {ErrorKind::BadArgument, "no file is open to be written"};
        return false;
    }
    auto& state = *m_state;
    if (!state.failure) {
        state.buffer.append(bytes);
        if (state.buffer.size() >= kBuffer) {
            if (const auto status = state.Flush(); status != 0) {
                state.failure = SystemError("write", state.path, status);
            }
        }
    }
    if (state.failure) {
        error = state.failure;
    }
    return !state.failure;
}

bool AtomicFile::Commit(Error& error)
{
    if (!Write({}, error)) {
        m_state.reset();
        return false;
    }
    auto status = m_state->Flush();
    if (status == 0) {
        status = m_state->TakePlace();
    }
    if (status != 0) {
        error = SystemError("write", m_state->path, status);
    }
    m_state.reset();
    return status == 0;
}

int AtomicFile::Descriptor() const noexcept
{
    return m_state ? m_state->file.Get() : -1;
}

} // namespace wqspcfg
