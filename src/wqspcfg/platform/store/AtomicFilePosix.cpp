#include "wqspcfg/platform/store/AtomicFile.h"

#include "wqspcfg/platform/store/PosixFile.h"

#include <cerrno>
#include <optional>
#include <random>
#include <sys/stat.h>
#include <unistd.h>

namespace wqspcfg {

namespace {

constexpr mode_t kRights = 0777;

// The directory of a path and the name in it.
void Split(const std::string& path, std::string& directory, std::string& name)
{
    const auto slash = path.rfind('/');
    directory = slash == std::string::npos ? "." : slash == 0 ? "/" : path.substr(0, slash);
    name = slash == std::string::npos ? path : path.substr(slash + 1);
}

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

std::string RandomName(const std::string& name)
{
    constexpr std::string_view kLetters = "abcdefghijklmnopqrstuvwxyz0123456789";
    std::random_device random;
    // Within what a file system takes for a name.
    auto result = '.' + name.substr(0, 200) + '.';
    for (int i = 0; i < 8; ++i) {
        result += kLetters[random() % kLetters.size()];
    }
    return result;
}

} // namespace

struct AtomicFile::State
{
    std::string path; // as messages give it
    std::string name; // of the target in its directory
    FileDescriptor directory;
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

    bool FindTarget(Error& error, std::optional<struct stat>& old);
    int Create();
    int Restrict(const std::optional<struct stat>& source, const std::optional<struct stat>& old);
    int Flush();
    int TakePlace();
};

// Follows links to the file that is to be replaced.
bool AtomicFile::State::FindTarget(Error& error, std::optional<struct stat>& old)
{
    constexpr int kMostLinks = 40;
    auto target = path;
    for (int links = 0;; ++links) {
        std::string parent;
        Split(target, parent, name);
        directory = OpenFile(parent, O_RDONLY | O_DIRECTORY);
        struct stat status = {};
        if (!directory || name.empty()) {
            error = SystemError("write", path, directory ? EISDIR : errno);
            return false;
        }
        if (fstatat(directory.Get(), name.c_str(), &status, AT_SYMLINK_NOFOLLOW) != 0) {
            if (errno != ENOENT) {
                error = SystemError("write", path, errno);
            }
            return errno == ENOENT;
        }
        if (S_ISREG(status.st_mode)) {
            old = status;
            return true;
        }
        if (!S_ISLNK(status.st_mode)) {
            error = {ErrorKind::BadArgument, path + " is not a regular file"};
            return false;
        }
        struct stat folder = {};
        if (fstat(directory.Get(), &folder) != 0 ||
            (status.st_uid != geteuid() && status.st_uid != 0 && (folder.st_mode & (S_IWGRP | S_IWOTH)) != 0)) {
            error = {ErrorKind::AccessDenied, path + " is a link of another user in a directory that others can write, "
                                                     "and is not followed; give the file itself"};
            return false;
        }
        std::string content(4096, '\0');
        const auto size = readlinkat(directory.Get(), name.c_str(), content.data(), content.size());
        if (size <= 0 || static_cast<std::size_t>(size) == content.size() || links == kMostLinks) {
            error = SystemError("write", path, size < 0 ? errno : ELOOP);
            return false;
        }
        content.resize(static_cast<std::size_t>(size));
        target = content.front() == '/' ? content : parent + '/' + content;
    }
}

// An errno value, or 0.
int AtomicFile::State::Create()
{
    constexpr mode_t kOwnOnly = 0600;
#if defined(O_TMPFILE)
    file = OpenAt(directory.Get(), ".", O_TMPFILE | O_RDWR, kOwnOnly);
    if (file && access(file.Path().c_str(), F_OK) == 0) {
        return 0;
    }
    file.Close(); // without /proc it could never get a name
#endif
    for (int tries = 0; tries < 100; ++tries) {
        temporary = RandomName(name);
        file = OpenAt(directory.Get(), temporary.c_str(), O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW, kOwnOnly);
        if (file) {
            return 0;
        }
        temporary.clear();
        if (errno != EEXIST) {
            return errno;
        }
    }
    return EEXIST;
}

// Gives the file its owner, group and rights. An errno value, or 0.
int AtomicFile::State::Restrict(const std::optional<struct stat>& source, const std::optional<struct stat>& old)
{
    struct stat fresh = {};
    if (fstat(file.Get(), &fresh) != 0) {
        return errno;
    }
    if (!source && !old) {
        const auto mask = umask(077);
        umask(mask);
        return fchmod(file.Get(), 0666 & ~mask) != 0 ? errno : 0;
    }
    // Whom it cannot be given to, it is not; the rights below reckon with what it became.
    const auto& model = old ? *old : *source;
    if (old && old->st_uid != fresh.st_uid && (!source || source->st_uid == old->st_uid)) {
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
    for (const auto* limit : {&source, &old}) {
        if (limit->has_value()) {
            group &= GroupRights(**limit, fresh.st_gid);
            other &= OtherRights(**limit, fresh.st_gid);
        }
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
    for (std::string_view rest = buffer; !rest.empty();) {
        const auto written = write(file.Get(), rest.data(), rest.size());
        if (written < 0 && errno != EINTR) {
            return errno;
        }
        rest.remove_prefix(written < 0 ? 0 : static_cast<std::size_t>(written));
    }
    buffer.clear();
    return 0;
}

// An errno value, or 0.
int AtomicFile::State::TakePlace()
{
    if (fsync(file.Get()) != 0) {
        return errno;
    }
    for (int tries = 0; temporary.empty() && tries < 100; ++tries) {
        // A link replaces nothing: it gets a name of its own for a moment.
        const auto fresh = RandomName(name);
        if (linkat(AT_FDCWD, file.Path().c_str(), directory.Get(), fresh.c_str(), AT_SYMLINK_FOLLOW) == 0) {
            temporary = fresh;
        } else if (errno != EEXIST) {
            return errno;
        }
    }
    if (temporary.empty()) {
        return EEXIST;
    }
    if (renameat(directory.Get(), temporary.c_str(), directory.Get(), name.c_str()) != 0) {
        return errno;
    }
    temporary.clear();
    return fsync(directory.Get()) != 0 ? errno : 0;
}

AtomicFile::AtomicFile() = default;
AtomicFile::~AtomicFile() = default;

bool AtomicFile::Open(const std::string& path, const std::string& source, Error& error)
{
    auto state = std::make_unique<State>();
    state->path = path;
    std::optional<struct stat> old;
    if (!state->FindTarget(error, old)) {
        return false;
    }
    std::optional<struct stat> model;
    if (!source.empty()) {
        if (stat(source.c_str(), &model.emplace()) != 0) {
            error = SystemError("read the rights of", source, errno);
            return false;
        }
    }
    auto status = state->Create();
    if (status == 0) {
        status = state->Restrict(model, old);
    }
    if (status != 0) {
        error = SystemError("write", path, status);
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
