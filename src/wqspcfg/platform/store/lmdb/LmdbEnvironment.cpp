#include "wqspcfg/platform/store/lmdb/LmdbEnvironment.h"

#include "wqspcfg/platform/store/ForkSafe.h"
#include "wqspcfg/platform/store/LockWait.h"
#include "wqspcfg/platform/store/Record.h"
#include "wqspcfg/platform/store/lmdb/LmdbFiles.h"
#include "wqspcfg/platform/store/lmdb/LmdbFormat.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <fcntl.h>
#include <limits>
#include <map>
#include <sys/resource.h>
#include <system_error>
#include <unistd.h>
#include <utility>

namespace wqspcfg {

namespace {

// Far beyond any terminal's store. It is address space only; the file grows with its content.
constexpr std::size_t kDefaultMapSize = std::size_t{64} << 30;

// How long readers may go on with a file that has been removed or replaced before they notice; looking costs more than
// many a read. Writers look every time.
constexpr std::int64_t kLookInterval = 50;

std::int64_t CoarseMilliseconds()
{
    timespec now{};
    (void)clock_gettime(CLOCK_MONOTONIC_COARSE, &now);
    return std::int64_t{now.tv_sec} * 1000 + now.tv_nsec / 1000000;
}

// Locks of this library far behind the end of a file. Unlike those of LMDB they belong to the open file, and so stand
// between two copies of the library in one process, too. One byte for the writer; one for each process that writes, and
// one for each that has the store open, by its number. They are on the lock file, and those of the last kind on the
// data file too, where processes with another lock file see them. All are write locks: whoever may only read the files
// can take none.
constexpr off_t kWriterByte = off_t{1} << 50;
constexpr off_t kMostProcesses = off_t{1} << 22;
constexpr off_t kWriterProcess = kWriterByte + 1;
constexpr off_t kUserProcess = kWriterProcess + kMostProcesses;

// Readers at rest, which keep their places from other processes. A thread that finds none claims a place under LMDB's
// lock of the readers, without a system call; that costs little beside a Load.
constexpr std::size_t kMostIdle = 1;

struct flock LockOf(short type, off_t start, off_t length)
{
    struct flock lock = {};
    lock.l_type = type;
    lock.l_whence = SEEK_SET;
    lock.l_start = start;
    lock.l_len = length;
    return lock;
}

// An errno value, or 0.
int SetLock(const FileDescriptor& file, short type, off_t start, off_t length = 1)
{
    auto lock = LockOf(type, start, length);
    return fcntl(file.Get(), F_OFD_SETLK, &lock) != 0 ? errno : 0;
}

// Where the first write lock of somebody else in the range is, from its start; -1 for none.
off_t FindLock(const FileDescriptor& file, off_t start, off_t length)
{
    auto lock = LockOf(F_RDLCK, start, length);
    return fcntl(file.Get(), F_OFD_GETLK, &lock) == 0 && lock.l_type != F_UNLCK ? lock.l_start - start : -1;
}

// Whether a process other than this one has an environment on the lock file.
bool IsLockFileUsed(const FileDescriptor& lockFile, pid_t& process)
{
    auto lock = LockOf(F_WRLCK, 0, 1);
    const bool isUsed = fcntl(lockFile.Get(), F_GETLK, &lock) == 0 && lock.l_type != F_UNLCK;
    process = isUsed ? lock.l_pid : 0;
    return isUsed;
}

bool IsSameFile(const struct stat& left, const struct stat& right)
{
    return left.st_dev == right.st_dev && left.st_ino == right.st_ino;
}

// Whether another copy of this library in this process has the store open. The lock file is not opened for that:
// closing it would drop all locks that the process has on it, the other copy's too. Where the other copy could leave no
// mark on the data file, its own descriptor of the lock file shows the one that is there. (A child of a fork inherits
// such descriptors; the marks behind them are its parent's.)
bool IsUsedByOtherCopy(const LmdbFolder& folder, const FileDescriptor& dataFile)
{
    const auto mark = kUserProcess + getpid();
    if (FindLock(dataFile, mark, 1) >= 0) {
        return true;
    }
    struct stat lock = {};
    if (fstatat(folder.Get(), kLockName, &lock, AT_SYMLINK_NOFOLLOW) != 0) {
        return false;
    }
    bool isUsed = false;
    (void)VisitNames(OpenFile("/proc/self/fd", O_RDONLY | O_DIRECTORY), [&](const char* name) {
        const auto number = static_cast<int>(std::strtol(name, nullptr, 10)); // 0 for "." and ".."
        struct stat status = {};
        auto search = LockOf(F_RDLCK, mark, 1);
        // Another thread may close it at any moment, which does no harm.
        isUsed = number >= kLeastDescriptor && fstat(number, &status) == 0 && IsSameFile(status, lock) &&
                 fcntl(number, F_OFD_GETLK, &search) == 0 && search.l_type != F_UNLCK;
        return !isUsed;
    });
    return isUsed;
}

// What this process is still allowed.
std::size_t FreeAddressSpace()
{
    rlimit limit{};
    if (getrlimit(RLIMIT_AS, &limit) != 0 || limit.rlim_cur == RLIM_INFINITY) {
        return std::numeric_limits<std::size_t>::max();
    }
    char text[32] = {}; // the first number is that of all its pages
    const auto file = OpenFile("/proc/self/statm", O_RDONLY);
    const auto isRead = file && read(file.Get(), text, sizeof text - 1) > 0;
    const auto used = isRead ? std::strtoul(text, nullptr, 10) * static_cast<std::size_t>(getpagesize()) : 0;
    return limit.rlim_cur - std::min<std::size_t>(used, limit.rlim_cur);
}

// Lock files that this copy of the library opened at the same time as another copy in this process. They stay open, as
// closing one would drop the other copy's locks, and are used when the store is opened again.
class KeptLockFiles
{
  public:
    void Keep(FileDescriptor file)
    {
        const auto number = file.Release();
        for (auto& place : m_files) {
            auto none = kNone;
            if (place.compare_exchange_strong(none, number)) {
                return;
            }
        }
    }

    FileDescriptor Take(const LmdbFolder& folder)
    {
        struct stat lock = {};
        if (fstatat(folder.Get(), kLockName, &lock, AT_SYMLINK_NOFOLLOW) != 0) {
            return FileDescriptor();
        }
        for (auto& place : m_files) {
            FileDescriptor file(place.exchange(kNone));
            struct stat status = {};
            if (file && fstat(file.Get(), &status) == 0 && IsSameFile(status, lock)) {
                return file;
            }
            if (file) {
                Keep(std::move(file));
            }
        }
        return FileDescriptor();
    }

    // In a child of a fork: a lock taken through one of them would be the parent's, too.
    void Close()
    {
        for (auto& place : m_files) {
            FileDescriptor(place.exchange(kNone)).Close();
        }
    }

  private:
    static constexpr int kNone = -1;

    std::array<std::atomic<int>, 8> m_files{kNone, kNone, kNone, kNone, kNone, kNone, kNone, kNone};
};

KeptLockFiles g_keptLockFiles;
std::atomic<unsigned> g_forks{0};
thread_local int t_reads = 0; // read transactions of this thread

} // namespace

// The open environments by the real path of their directories. An environment is closed with the mutex held: closing
// the lock file while another environment has it open would drop that one's locks.
struct EnvironmentRegistry
{
    std::mutex& mutex = ForkSafeMutex(ForkSafe::Environments);
    std::condition_variable closed;
    std::map<std::string, std::weak_ptr<LmdbEnvironment>> open;
    std::vector<std::shared_ptr<LmdbEnvironment>> forking; // locked while this process forks

    EnvironmentRegistry()
    {
        SetForkHandler({&LmdbEnvironment::BeforeFork, &LmdbEnvironment::AfterForkInParent,
                        &LmdbEnvironment::AfterForkInChild, [] { Get().forking.clear(); }});
    }

    static EnvironmentRegistry& Get()
    {
        static auto* registry = new EnvironmentRegistry; // used until the process ends, by static objects too
        return *registry;
    }
};

// No thread is about to open or close an environment's files then: the child could close a file of somebody else's that
// has got the number of one of them.
void LmdbEnvironment::BeforeFork()
{
    auto& registry = EnvironmentRegistry::Get();
    for (const auto& [path, known] : registry.open) {
        if (auto environment = known.lock()) {
            environment->m_mutex.lock();
            registry.forking.push_back(std::move(environment));
        }
    }
}

void LmdbEnvironment::AfterForkInParent()
{
    for (const auto& environment : EnvironmentRegistry::Get().forking) {
        environment->m_mutex.unlock();
    }
}

void LmdbEnvironment::AfterForkInChild()
{
    ++g_forks;
    auto& registry = EnvironmentRegistry::Get();
    for (const auto& environment : registry.forking) {
        environment->m_dataFile.Close(); // the parent's locks go with its last copy of these files
        environment->m_lockFile.Close();
        environment->m_mutex.unlock();
    }
    registry.forking.clear();
    registry.open.clear();
    g_keptLockFiles.Close();
}

LmdbEnvironment::LmdbEnvironment(std::string directory, std::size_t mapSize)
    : m_directory(std::move(directory)), m_dataPath(m_directory + "/data.mdb"), m_forks(g_forks),
      m_mapSize(mapSize == 0 ? kDefaultMapSize : mapSize)
{}

LmdbEnvironment::~LmdbEnvironment()
{
    CloseFiles();
}

bool LmdbEnvironment::IsOurs() const noexcept
{
    return m_forks == g_forks.load(std::memory_order_relaxed);
}

std::shared_ptr<LmdbEnvironment> LmdbEnvironment::Open(const std::string& address, const std::string& directory,
                                                       bool create, std::size_t mapSize, Error& error)
{
    struct stat status = {};
    const auto dataPath = directory + "/data.mdb";
    bool isMade = false;
    if (create && stat(dataPath.c_str(), &status) != 0 && (errno == ENOENT || errno == ENOTDIR) &&
        !CreateStore(address, directory, isMade, error)) {
        return nullptr;
    }
    const std::unique_ptr<char, decltype(&std::free)> real(realpath(directory.c_str(), nullptr), &std::free);
    if (!real) {
        error = LmdbError(address, "open", directory, errno);
        return nullptr;
    }
    const std::string path(real.get());

    auto& registry = EnvironmentRegistry::Get();
    std::unique_lock lock(registry.mutex);
    for (auto found = registry.open.find(path); found != registry.open.end(); found = registry.open.find(path)) {
        if (auto environment = found->second.lock()) {
            return environment;
        }
        registry.closed.wait(lock);
    }
    const auto close = [path](LmdbEnvironment* environment) {
        if (!environment->IsOurs()) {
            // Not even closing it is allowed here.
            return;
        }
        auto& open = EnvironmentRegistry::Get();
        const std::lock_guard closing(open.mutex);
        delete environment;
        open.open.erase(path);
        open.closed.notify_all();
    };
    auto environment = std::unique_ptr<LmdbEnvironment>(new LmdbEnvironment(path, mapSize));
    if (!environment->OpenFiles(address, error)) {
        environment.reset();
        lock.unlock();
        if (isMade) {
            (void)RemoveNew(address, directory); // such as where the file system has no room for the lock file
        }
        return nullptr;
    }
    std::shared_ptr<LmdbEnvironment> shared(environment.release(), close);
    registry.open[path] = shared;
    return shared;
}

bool LmdbEnvironment::Replace(const std::string& address, const LmdbFolder& folder, const ActAsOwner& owner,
                              const FileDescriptor& fresh, std::string& name, std::string& kept, Error& error)
{
    const std::unique_ptr<char, decltype(&std::free)> real(realpath(folder.Path().c_str(), nullptr), &std::free);
    if (!real) {
        error = LmdbError(address, "open", folder.Path(), errno);
        return false;
    }
    auto& registry = EnvironmentRegistry::Get();
    const std::lock_guard opening(registry.mutex);
    if (registry.open.contains(real.get())) {
        error = {ErrorKind::Io, address + ": this process has the store open, so that it cannot be exchanged"};
        return false;
    }
    const auto lockPath = folder.PathOf(kLockName);
    if (IsUsedByOtherCopy(folder, folder.OpenFile(kDataName, O_RDONLY))) {
        error = {ErrorKind::Io, address + ": another copy of this library in this process has the store open, so that "
                                          "it cannot be exchanged"};
        return false;
    }
    struct stat data = {};
    int result = 0;
    (void)fstat(fresh.Get(), &data);
    const auto lockFile = OpenLockFile(address, folder, owner, data, result, error);
    if (!lockFile) {
        if (!error) {
            error = {KindOfSystemError(result),
                     address + ": cannot open " + lockPath + ": " + folder.WhyRefused(kLockName, result)};
        }
        return false;
    }
    // Every process that has the store open holds a lock on the lock file's first byte, and none can open it while this
    // one holds that alone.
    auto lock = LockOf(F_WRLCK, 0, 1);
    if (fcntl(lockFile.Get(), F_SETLK, &lock) != 0) {
        const auto failure = errno;
        pid_t process = 0;
        if ((failure == EACCES || failure == EAGAIN) && IsLockFileUsed(lockFile, process)) {
            error = {ErrorKind::Io, address + ": process " + std::to_string(process) + " has " + folder.Path() +
                                        " open; end it and all others that use the store, and try again"};
        } else {
            error = LmdbError(address, "lock", lockPath, failure);
        }
        return false;
    }

    const auto old = std::string(kDataName) + kKeptSuffix;
    kept.clear();
    if (faccessat(folder.Get(), kDataName, F_OK, AT_SYMLINK_NOFOLLOW) == 0) {
        (void)unlinkat(folder.Get(), old.c_str(), 0);
        // Some file systems have no hard links.
        result = linkat(folder.Get(), kDataName, folder.Get(), old.c_str(), 0) != 0 &&
                         renameat(folder.Get(), kDataName, folder.Get(), old.c_str()) != 0
                     ? errno
                     : 0;
        kept = folder.PathOf(old.c_str());
    }
    if (result == 0) {
        result = folder.Place(fresh, name, true);
    }
    if (result == 0) {
        result = folder.Sync();
    }
    // The lock file holds the number of the last transaction, and a process that waits for the lock will believe it.
    MDB_env* env = nullptr;
    if (result == 0) {
        result = mdb_env_create(&env);
    }
    if (result == 0) {
        (void)mdb_env_set_maxreaders(env, kMaxReaders);
        result = OpenEnvironment(env, folder.OpenPath(), MDB_NOTLS);
        mdb_env_close(env);
    }
    if (result != 0) {
        error = LmdbError(address, "replace", folder.PathOf(kDataName), result);
    }
    return result == 0;
}

bool LmdbEnvironment::RemoveNew(const std::string& address, const std::string& directory)
{
    Error error;
    LmdbFolder folder;
    if (!folder.Open(address, directory, false, error)) {
        return false;
    }
    const ActAsOwner owner(folder);
    auto& registry = EnvironmentRegistry::Get();
    const std::lock_guard opening(registry.mutex);
    const std::unique_ptr<char, decltype(&std::free)> real(realpath(directory.c_str(), nullptr), &std::free);
    if (!owner.Check(address, folder, error) || !real || registry.open.contains(real.get())) {
        return false;
    }
    const auto data = folder.OpenFile(kDataName, O_RDWR);
    // As long as this mark is on the data file, and the lock file is in nobody's use, nobody opens the store.
    if (!data || SetLock(data, F_WRLCK, kUserProcess + getpid()) != 0 || IsUsedByOtherCopy(folder, data)) {
        return false;
    }
    const auto lock = folder.OpenFile(kLockName, O_RDWR);
    const bool hasLock = lock || errno != ENOENT;
    if (hasLock && !lock) {
        return false;
    }
    pid_t holder = 0;
    const bool isUsed =
        FindLock(data, kUserProcess, kMostProcesses) >= 0 ||
        (hasLock && (FindLock(lock, kUserProcess, kMostProcesses) >= 0 || IsLockFileUsed(lock, holder)));
    return !isUsed && LastTransaction(data) == 1 && unlinkat(folder.Get(), kDataName, 0) == 0 &&
           (!hasLock || unlinkat(folder.Get(), kLockName, 0) == 0);
}

Error LmdbEnvironment::OtherCopy(const std::string& address) const
{
    return {ErrorKind::Io, address + ": another copy of this library in this process (number " +
                               std::to_string(getpid()) + ") has " + m_dataPath +
                               " open, and two of them would undo each other's writes; build the service providers of "
                               "one process with one shared library"};
}

namespace {

constexpr int kLooks = 200; // a process that is just opening or closing the store gets some time

void PauseBetweenLooks(int looks)
{
    usleep(static_cast<useconds_t>(2000 + 1000 * ((getpid() * 7 + looks * 13) % 17)));
}

} // namespace

bool LmdbEnvironment::AwaitOtherCopy(const std::string& address, Error& error)
{
    for (int looks = 1; IsUsedByOtherCopy(m_folder, m_dataFile); ++looks) {
        if (looks == kLooks) {
            error = OtherCopy(address);
            return false;
        }
        PauseBetweenLooks(looks);
    }
    return true;
}

// Tells other processes that this one uses the store, and finds out whether others use it in a way that LMDB does not
// know of. Its table of readers and its locks are in the lock file, which it takes for unused when nobody holds it.
bool LmdbEnvironment::Announce(const std::string& address, Error& error)
{
    const auto self = static_cast<off_t>(getpid());
    for (int looks = 1;; ++looks) {
        const auto status = SetLock(m_lockFile, F_WRLCK, kUserProcess + self);
        if (status != 0 && status != EAGAIN && status != EACCES) {
            error = LmdbError(address, "lock", m_directory + '/' + kLockName, status);
            return false;
        }
        // Without the right to write the data file, or when a reader of it locks it, this process has to do without.
        (void)SetLock(m_dataFile, F_WRLCK, kUserProcess + self);
        pid_t holder = 0;
        const bool isCopy = status != 0 || FindLock(m_dataFile, kUserProcess + self, 1) >= 0;
        const auto user = FindLock(m_dataFile, kUserProcess, kMostProcesses);
        if (!isCopy && (user < 0 || IsLockFileUsed(m_lockFile, holder))) {
            return true;
        }
        if (looks == kLooks && isCopy) {
            Unmark();
            g_keptLockFiles.Keep(std::move(m_lockFile));
            error = OtherCopy(address);
            return false;
        }
        if (looks == kLooks) {
            error = {ErrorKind::Io,
                     address + ": process " + std::to_string(user) + " uses " + m_dataPath + ", but its lock file " +
                         m_directory + '/' + kLockName +
                         " was removed or exchanged; end all processes that use the store, and try again"};
            return false;
        }
        // Two that open the store at once must not wait for each other: each takes its mark back for a time of its own.
        Unmark();
        PauseBetweenLooks(looks);
    }
}

void LmdbEnvironment::Unmark() noexcept
{
    for (const auto* file : {&m_dataFile, &m_lockFile}) {
        if (*file) {
            (void)SetLock(*file, F_UNLCK, kUserProcess + getpid());
        }
    }
}

Error LmdbEnvironment::BeingExchanged(const std::string& address) const
{
    return {ErrorKind::Io,
            address + ": the files in " + m_directory + " are being exchanged while they are opened; try again"};
}

bool LmdbEnvironment::OpenMaps(const std::string& address, unsigned flags, std::size_t needed, int& status,
                               bool& isMoved, Error& error)
{
    // Two maps of it leave most of the address space to all else, and to larger ones.
    m_mapSize = std::max(std::min(m_mapSize, FreeAddressSpace() / 8 / kLeastMapSize * kLeastMapSize), needed);
    for (;;) {
        status = mdb_env_create(&m_env);
        if (status != 0) {
            return false;
        }
        (void)mdb_env_set_maxreaders(m_env, kMaxReaders);
        (void)mdb_env_set_mapsize(m_env, m_mapSize);
        status = OpenEnvironment(m_env, m_folder.OpenPath(), MDB_NOTLS | flags);
        int file = -1;
        struct stat opened = {};
        if (status == 0) {
            status = mdb_env_get_fd(m_env, &file);
        }
        if (status == 0) {
            status = fstat(file, &opened) != 0 ? errno : m_map.Open(file, m_mapSize);
        }
        if (status == 0) {
            struct stat lock = {};
            isMoved = !IsSameFile(opened, m_data) ||
                      fstatat(m_folder.Get(), kLockName, &lock, AT_SYMLINK_NOFOLLOW) != 0 || !IsSameFile(lock, m_lock);
            for (int standard = 0; standard < kLeastDescriptor; ++standard) {
                // Another thread may have closed one just now.
                struct stat other = {};
                isMoved = isMoved ||
                          (fstat(standard, &other) == 0 && (IsSameFile(other, m_data) || IsSameFile(other, m_lock)));
            }
            if (!isMoved) {
                return true;
            }
            error = BeingExchanged(address);
        }
        m_map.Close();
        mdb_env_close(m_env);
        m_env = nullptr;
        if (isMoved || status != ENOMEM || m_mapSize == needed) {
            return false;
        }
        // A process may be allowed less address space.
        m_mapSize = std::max(m_mapSize / 2, needed);
    }
}

bool LmdbEnvironment::OpenFiles(const std::string& address, Error& error)
{
    constexpr int kMostTries = 100; // a file may be exchanged just now
    bool isMoved = true;
    bool isOpen = false;
    for (int tries = 0; isMoved && tries < kMostTries; ++tries) {
        isMoved = false;
        isOpen = OpenFilesOnce(address, isMoved, error);
    }
    if (isOpen) {
        error = {};
    }
    return isOpen;
}

bool LmdbEnvironment::OpenFilesOnce(const std::string& address, bool& isMoved, Error& error)
{
    if (!m_folder.Open(address, m_directory, false, error)) {
        return false;
    }
    const ActAsOwner owner(m_folder);
    if (!owner.Check(address, m_folder, error)) {
        return false;
    }
    m_whyReadOnly = m_folder.WhoElseWrites();
    m_isCopied = !m_whyReadOnly.empty();
    m_dataFile = m_folder.OpenFile(kDataName, m_isCopied ? O_RDONLY : O_RDWR);
    if (!m_dataFile && !m_isCopied && (errno == EACCES || errno == EPERM || errno == EROFS)) {
        m_whyReadOnly = m_folder.WhyRefused(kDataName, errno);
        m_dataFile = m_folder.OpenFile(kDataName, O_RDONLY);
    }
    if (!m_dataFile) {
        const auto status = errno;
        error = status == ELOOP ? Error{ErrorKind::AccessDenied, ErrorPrefix(address) + m_dataPath +
                                                                     " is a symbolic link and is not followed; name "
                                                                     "the directory that it leads to"}
                : status == EISDIR || status == ENXIO
                    ? Error{ErrorKind::BadArgument, ErrorPrefix(address) + m_dataPath + " is not a regular file"}
                    : Error{KindOfSystemError(status), ErrorPrefix(address) + "cannot open " + m_dataPath + ": " +
                                                           m_folder.WhyRefused(kDataName, status)};
        return false;
    }
    if (!m_folder.CheckFile(address, kDataName, m_dataFile, error) ||
        !wqspcfg::CheckFile(address, m_dataPath, m_dataFile, m_data, error)) {
        m_dataFile.Close();
        return false;
    }
    int result = 0;
    Error failure;
    if (!m_isCopied && AwaitOtherCopy(address, failure)) {
        m_lockFile = g_keptLockFiles.Take(m_folder);
        if (!m_lockFile) {
            m_lockFile = OpenLockFile(address, m_folder, owner, m_data, result, failure);
        }
    }
    if (failure || (m_lockFile && fstat(m_lockFile.Get(), &m_lock) != 0)) {
        error = failure ? std::move(failure) : LmdbError(address, "open", m_directory + '/' + kLockName, errno);
        CloseFiles();
        return false;
    }
    m_isCopied = !m_lockFile;
    if (m_isCopied && m_whyReadOnly.empty()) {
        m_whyReadOnly =
            std::string(kLockName) + " beside it cannot be opened to write: " + m_folder.WhyRefused(kLockName, result);
    }
    m_fileSize = static_cast<std::size_t>(m_data.st_size);
    m_broken = false;
    m_full = false;
    if (m_isCopied) {
        return true;
    }
    const auto needed = m_fileSize + kLeastMapSize;
    const unsigned flags = m_whyReadOnly.empty() ? 0 : MDB_RDONLY;
    if (Announce(address, failure)) {
        // Nobody takes the files away from now on; LMDB would make an empty one in the place of one that is gone.
        bool isLockGone = false;
        isMoved = !IsWhereItWas(address, isLockGone, failure) && !failure;
        if (isMoved) {
            failure = BeingExchanged(address);
        }
    }
    if (failure || !OpenMaps(address, flags, needed, result, isMoved, failure)) {
        error = failure ? std::move(failure) : LmdbError(address, "open", m_dataPath, result);
        CloseFiles();
        return false;
    }
    int dead = 0;
    (void)mdb_reader_check(m_env, &dead);
    return true;
}

void LmdbEnvironment::CloseFiles() noexcept
{
    for (auto* txn : m_idle) {
        mdb_txn_abort(txn);
    }
    m_idle.clear();
    m_copy.reset();
    m_map.Close();
    if (m_env != nullptr) {
        mdb_env_close(m_env);
        m_env = nullptr;
    }
    // A child that was forked meanwhile may have a copy of the descriptors, which would keep this process's mark. The
    // one on the data file keeps another copy of this library from the lock file until that is closed.
    if (IsOurs() && m_lockFile) {
        (void)SetLock(m_lockFile, F_UNLCK, kUserProcess + getpid());
    }
    m_lockFile.Close();
    if (IsOurs()) {
        Unmark();
    }
    m_dataFile.Close();
}

int LmdbEnvironment::PutState(MDB_txn* txn, MDB_dbi dbi, std::uint64_t number)
{
    std::string record;
    BuildRecord(kStoreFormat, {}, std::as_bytes(std::span(&number, 1)), record);
    SealRecord(NameSum(kStateName), {}, record);
    MDB_val name{kStateName.size(), const_cast<char*>(kStateName.data())};
    MDB_val value{record.size(), record.data()};
    return mdb_put(txn, dbi, &name, &value, 0);
}

bool LmdbEnvironment::CheckState(const std::string& address, const std::string& path, LmdbTree& tree,
                                 std::uint64_t last, Error& error)
{
    std::string_view record;
    switch (tree.Get(kStateName, Locality::Far, record)) {
    case Lookup::Found:
        break;
    case Lookup::Absent:
        error = {ErrorKind::Damaged, ErrorPrefix(address) + path + " is an LMDB file but holds no registry store"};
        return false;
    case Lookup::Failed:
        error = DamagedFile(address, path, tree.Cause());
        return false;
    }
    // Every format has this record and its check sum, so that a changed bit does not pass for a newer format.
    RecordView view;
    if (!IsSealed(NameSum(kStateName), {}, record) || !ParseRecord(record, view)) {
        error = DamagedFile(address, path, "the check sum of its state record is wrong");
        return false;
    }
    if (view.type > kStoreFormat) {
        error = {ErrorKind::NewerFormat,
                 ErrorPrefix(address) + path + " has store format " + std::to_string(view.type) +
                     ", written by a newer version; this one knows formats up to " + std::to_string(kStoreFormat)};
        return false;
    }
    std::uint64_t number = 0;
    if (view.data.size() != sizeof number) {
        error = DamagedFile(address, path, "its state record has an impossible length");
        return false;
    }
    std::memcpy(&number, view.data.data(), sizeof number);
    // The content must be that of the transaction that LMDB takes for the last one; a compacted copy starts again at 1.
    if (number != last && last != 1) {
        error = DamagedFile(address, path, "its content is of another transaction than its head");
        return false;
    }
    return true;
}

Error LmdbEnvironment::Describe(const std::string& address, std::string_view action, int status) const
{
    return LmdbError(address, action, m_dataPath, LmdbWriteStatus(m_dataPath, status));
}

Error LmdbEnvironment::DescribeDamage(const std::string& address, std::string_view cause) const
{
    return DamagedFile(address, m_dataPath, cause);
}

// Whether data and lock file are still those that are open; false with `error` when there is no data file.
bool LmdbEnvironment::IsWhereItWas(const std::string& address, bool& isLockGone, Error& error)
{
    struct stat status = {};
    isLockGone = false;
    if (lstat(m_dataPath.c_str(), &status) != 0) {
        error = LmdbError(address, "use", m_dataPath, errno);
        return false;
    }
    // One that others may write now is not used any longer by the superuser.
    if (!IsSameFile(status, m_data) || (!m_isCopied && m_folder.IsOfOthers(status))) {
        return false;
    }
    m_fileSize = static_cast<std::size_t>(status.st_size);
    if (!m_isCopied) {
        const auto lockPath = m_directory + '/' + kLockName;
        isLockGone = lstat(lockPath.c_str(), &status) != 0 || !IsSameFile(status, m_lock);
        if (!isLockGone && m_folder.IsOfOthers(status)) {
            return false;
        }
    }
    return !isLockGone;
}

bool LmdbEnvironment::MayWriteNow() const
{
    if (!m_folder.WhoElseWrites().empty()) {
        return false;
    }
    const ActAsOwner owner(m_folder);
    // Trying it out is the answer for the rights that the files are opened with. Closing the data file drops no locks;
    // the lock file is opened here only while this process has none on it.
    const auto data = m_folder.OpenFile(kDataName, O_RDWR);
    return data && !(m_isCopied && IsUsedByOtherCopy(m_folder, data)) &&
           (!m_isCopied || m_folder.OpenFile(kLockName, O_RDWR) || errno == ENOENT);
}

bool LmdbEnvironment::Prepare(const std::string& address, Access access, std::unique_lock<std::mutex>& lock,
                              Error& error)
{
    const auto now = CoarseMilliseconds();
    if (m_dataFile && !m_broken && now < m_nextLook && (access == Access::Read || m_whyReadOnly.empty())) {
        return true; // a writer looks again when it has its turn
    }
    for (bool hasWaited = false;; hasWaited = true) {
        m_nextLook = 0;
        bool isLockGone = false;
        Error failure;
        const bool isThere = IsWhereItWas(address, isLockGone, failure);
        if (failure) {
            error = std::move(failure);
            return false;
        }
        const bool isMended = access == Access::Write && !m_whyReadOnly.empty() && m_active == 0 && MayWriteNow();
        // While this thread waited, another one may have closed the files and failed to open them again.
        if (m_dataFile && isThere && !m_broken && !isMended) {
            m_nextLook = now + kLookInterval;
            return true;
        }
        if (m_active == 0) {
            break;
        }
        // The other threads' transactions end soon; this thread's own one does not.
        constexpr auto kPatience = std::chrono::seconds(10);
        if (hasWaited || t_reads > 0 || isLockGone ||
            !m_ended.wait_for(lock, kPatience, [this] { return m_active == 0; })) {
            error = {ErrorKind::Io,
                     address + ": " +
                         (isLockGone ? m_directory + '/' + kLockName +
                                           " was removed or exchanged while the store is in use; end all processes "
                                           "that use the store, and try again"
                                     : m_dataPath + (isThere ? " has failed" : " has been replaced") +
                                           " while it is in use; end this process's transactions on it and try again")};
            return false;
        }
    }
    CloseFiles();
    return OpenFiles(address, error);
}

// Only while no transaction of this process is active. 0 is the size that another process has chosen.
int LmdbEnvironment::Grow(std::size_t size)
{
    auto result = mdb_env_set_mapsize(m_env, size);
    m_broken = result != 0; // it has let go of its map then
    if (result == 0) {
        MDB_envinfo info{};
        (void)mdb_env_info(m_env, &info);
        m_mapSize = info.me_mapsize;
        int file = -1;
        (void)mdb_env_get_fd(m_env, &file);
        m_map.Close();
        result = m_map.Open(file, m_mapSize);
        m_broken = result != 0;
    }
    return result;
}

// Begins a read transaction on a resting one where there is one.
int LmdbEnvironment::Renew(MDB_txn*& txn)
{
    if (m_idle.empty()) {
        return mdb_txn_begin(m_env, nullptr, MDB_RDONLY, &txn);
    }
    const auto result = mdb_txn_renew(m_idle.back());
    if (result == 0) {
        txn = m_idle.back();
        m_idle.pop_back();
    }
    return result;
}

int LmdbEnvironment::BeginRenewed(MDB_txn*& txn)
{
    auto result = Renew(txn);
    if (result == MDB_MAP_RESIZED && m_active == 0) {
        result = Grow(0);
        if (result == 0) {
            result = Renew(txn);
        }
    }
    if (result == MDB_READERS_FULL) {
        int dead = 0;
        (void)mdb_reader_check(m_env, &dead);
        result = Renew(txn);
    }
    return result;
}

// The last state, in memory: the file's pages are read while others may write to it, and count when no writer can have
// used those of this state again. That takes two commits after it.
bool LmdbEnvironment::OpenCopy(LmdbTree& tree, std::string& cause)
{
    constexpr int kMostTries = 100;
    for (int tries = 0; tries < kMostTries; ++tries) {
        const auto number = LastTransaction(m_dataFile);
        if (m_copy && m_copyNumber == number) {
            return tree.Open(m_copy, number) || (cause = tree.Cause(), false);
        }
        auto copy = std::make_shared<LmdbMap>();
        const auto status = copy->Read(m_dataFile.Get());
        if (status != 0) {
            cause = LmdbWords(status);
            return false;
        }
        if (LastTransaction(m_dataFile) - number > 1) {
            continue;
        }
        // A head that is being written is read again.
        if (tree.Open(copy, number)) {
            m_copy = std::move(copy);
            m_copyNumber = number;
            return true;
        }
        cause = tree.Cause();
    }
    if (cause.empty()) {
        cause = "others write to it faster than it can be read, and without the right to " + std::string(kLockName) +
                " this process cannot hold a state; get that right, or try again";
    }
    return false;
}

// Keeps a read transaction for the next one, or gives its place to others.
void LmdbEnvironment::Rest(MDB_txn* txn) noexcept
{
    if (txn == nullptr) {
        return; // a copy
    }
    if (m_idle.size() < kMostIdle) {
        mdb_txn_reset(txn);
        m_idle.push_back(txn);
    } else {
        mdb_txn_abort(txn);
    }
}

bool LmdbEnvironment::BeginRead(const std::string& address, MDB_txn*& txn, LmdbTree& tree, Error& error, bool* isFull)
{
    txn = nullptr;
    std::unique_lock lock(m_mutex);
    if (!Prepare(address, Access::Read, lock, error)) {
        return false;
    }
    std::uint64_t number = 0;
    for (int tries = 0;; ++tries) {
        if (m_isCopied) {
            txn = nullptr;
            std::string cause;
            if (!OpenCopy(tree, cause)) {
                error = {ErrorKind::Io, address + ": cannot read " + m_dataPath + ": " + cause};
                return false;
            }
            number = m_copyNumber;
            break;
        }
        auto result = BeginRenewed(txn);
        if (result == MDB_PANIC || m_broken) {
            // A write failed so badly that LMDB wants its environment opened anew, or there is no room for the map that
            // another process uses.
            m_broken = true;
            if (!Prepare(address, Access::Read, lock, error)) {
                return false;
            }
            if (m_isCopied) {
                continue;
            }
            result = BeginRenewed(txn);
        }
        if (result != 0) {
            error = LmdbError(address, "read", m_dataPath, result);
            if (isFull != nullptr) {
                *isFull = result == MDB_READERS_FULL;
            }
            return false;
        }
        number = mdb_txn_id(txn);
        if (tree.Open(m_map, m_fileSize, number)) {
            break;
        }
        // Writers may have gone on by two transactions between the two steps, or to another file.
        Rest(txn);
        if (tries >= 3) {
            error = DescribeDamage(address, tree.Cause());
            return false;
        }
        m_nextLook = 0;
        if (!Prepare(address, Access::Read, lock, error)) {
            return false;
        }
    }
    if (!CheckState(address, m_dataPath, tree, number, error)) {
        Rest(txn);
        return false;
    }
    ++m_active;
    ++t_reads;
    return true;
}

void LmdbEnvironment::EndRead(MDB_txn* txn) noexcept
{
    if (txn != nullptr) {
        mdb_txn_reset(txn);
    }
    const std::lock_guard lock(m_mutex);
    Rest(txn);
    --t_reads;
    if (--m_active == 0) {
        m_ended.notify_all();
    }
}

bool LmdbEnvironment::LookAt(const std::string& address, const LookAtState& look, Error& error)
{
    LmdbTree tree;
    MDB_txn* txn = nullptr;
    bool isFull = false;
    if (BeginRead(address, txn, tree, error, &isFull)) {
        look(tree, txn == nullptr ? m_copyNumber : static_cast<std::uint64_t>(mdb_txn_id(txn)));
        EndRead(txn);
        return true;
    }
    if (!isFull) {
        return false;
    }
    std::uint64_t number = 0;
    {
        const std::lock_guard lock(m_mutex);
        std::string cause;
        const bool isOpen = OpenCopy(tree, cause);
        m_copy.reset(); // the tree has it
        if (!isOpen) {
            error = {ErrorKind::Io, address + ": cannot read " + m_dataPath + ": " + cause};
            return false;
        }
        number = m_copyNumber;
    }
    if (!CheckState(address, m_dataPath, tree, number, error)) {
        return false;
    }
    error = {};
    look(tree, number);
    return true;
}

long LmdbEnvironment::FindWriter() const
{
    const auto found = FindLock(m_lockFile, kWriterProcess, kMostProcesses);
    return found < 0 ? 0 : static_cast<long>(found);
}

// Becomes the one writer of all processes.
bool LmdbEnvironment::TakeTurn(const std::string& address, std::chrono::steady_clock::time_point deadline, Error& error)
{
    using Clock = std::chrono::steady_clock;
    const auto notice = Clock::now() + std::chrono::seconds(1);
    const auto self = static_cast<long>(getpid());
    bool isTold = false;
    const auto tell = [&](long process) {
        if (!isTold && Clock::now() >= notice) {
            isTold = true;
            NotifyLockWait({address, process});
        }
    };
    const auto refuse = [&](long process) {
        error = {
            ErrorKind::Io,
            address + ": cannot write " + m_dataPath + ": " +
                (process == 0 ? "another process" : "process " + std::to_string(process)) +
                (process == self ? " (this one, in another thread)" : "") +
                " is still writing to it; end it, try again later, or wait longer (WQSPCFG_LOCK_TIMEOUT, seconds)"};
        return false;
    };
    {
        std::unique_lock lock(m_turnMutex);
        const auto isFree = [this] { return !m_isTurnTaken; };
        while (!m_turnEnded.wait_until(lock, isTold ? deadline : std::min(notice, deadline), isFree)) {
            if (Clock::now() >= deadline) {
                return refuse(self);
            }
            lock.unlock();
            tell(self);
            lock.lock();
        }
        m_isTurnTaken = true;
    }
    auto pause = std::chrono::microseconds(100);
    int status = 0;
    for (;;) {
        status = SetLock(m_lockFile, F_WRLCK, kWriterByte);
        if (status != EAGAIN && status != EACCES) {
            break;
        }
        if (Clock::now() >= deadline) {
            const auto process = FindWriter();
            EndTurn();
            return refuse(process);
        }
        if (!isTold && Clock::now() >= notice) {
            tell(FindWriter());
        }
        std::this_thread::sleep_for(pause);
        pause = std::min(pause * 3 / 2, std::chrono::microseconds(2000));
    }
    if (status == 0) {
        status = SetLock(m_lockFile, F_WRLCK, kWriterProcess + self);
    }
    if (status != 0) {
        EndTurn();
        error = LmdbError(address, "lock", m_directory + '/' + kLockName, status);
    }
    return status == 0;
}

void LmdbEnvironment::EndTurn() noexcept
{
    (void)SetLock(m_lockFile, F_UNLCK, kWriterByte, 1 + kMostProcesses);
    {
        const std::lock_guard lock(m_turnMutex);
        m_isTurnTaken = false;
    }
    m_turnEnded.notify_one();
}

// Counts this thread as active where it may write; `before` is how the last try ended.
bool LmdbEnvironment::PrepareWrite(const std::string& address, int before, Error& error)
{
    std::unique_lock lock(m_mutex);
    if (!Prepare(address, Access::Write, lock, error)) {
        return false;
    }
    if (m_env != nullptr) {
        int dead = 0;
        (void)mdb_reader_check(m_env, &dead);
    }
    if (m_active == 0 && m_whyReadOnly.empty()) {
        MDB_envinfo info{};
        MDB_stat layout{};
        (void)mdb_env_info(m_env, &info);
        (void)mdb_env_stat(m_env, &layout);
        const auto used = (info.me_last_pgno + 1) * layout.ms_psize;
        const auto size = m_mapSize;
        const bool isFull = std::exchange(m_full, false);
        const auto wanted = before == MDB_MAP_RESIZED ? 0 : 2 * std::max(size, used);
        if ((wanted == 0 || isFull || used > size / 4 * 3) && Grow(wanted) != 0) {
            // As much as there is address space for.
            CloseFiles();
            m_mapSize = std::max(size, wanted);
            if (!OpenFiles(address, error)) {
                return false;
            }
            m_full = isFull && m_mapSize <= size;
            if (m_full) {
                error = {ErrorKind::NoSpace, address + ": cannot write " + m_dataPath + ": " + LmdbWords(ENOMEM)};
                return false;
            }
        }
    }
    if (!m_whyReadOnly.empty()) {
        error = {ErrorKind::AccessDenied, address + ": cannot write " + m_dataPath + ": " + m_whyReadOnly};
        return false;
    }
    ++m_active;
    return true;
}

MDB_txn* LmdbEnvironment::BeginWrite(const std::string& address, Error& error)
{
    if (m_writer == std::this_thread::get_id()) {
        error = {ErrorKind::BadArgument, address + ": this thread is already writing to the store"};
        return nullptr;
    }
    constexpr int kMostTries = 5;
    const auto deadline = std::chrono::steady_clock::now() + LockTimeout();
    int result = 0;
    MDB_txn* txn = nullptr;
    for (int tries = 0; tries < kMostTries; ++tries) {
        if (!PrepareWrite(address, result, error)) {
            return nullptr;
        }
        if (!TakeTurn(address, deadline, error)) {
            Release(0);
            return nullptr;
        }
        // The writer before may have exchanged the file.
        bool isThere = false;
        {
            bool isLockGone = false;
            const std::lock_guard lock(m_mutex);
            isThere = IsWhereItWas(address, isLockGone, error);
            m_nextLook = isThere ? m_nextLook : 0;
        }
        result = isThere ? mdb_txn_begin(m_env, nullptr, 0, &txn) : 0;
        if (txn != nullptr && (result = mdb_dbi_open(txn, nullptr, 0, &m_dbi)) != 0) {
            mdb_txn_abort(std::exchange(txn, nullptr));
        }
        if (txn != nullptr) {
            break;
        }
        EndTurn();
        Release(result);
        if (!isThere && std::chrono::steady_clock::now() < deadline) {
            --tries; // that is nobody's fault
        }
        if (isThere && result != MDB_MAP_RESIZED && result != MDB_PANIC) {
            break;
        }
    }
    if (txn == nullptr) {
        error = LmdbError(address, "write", m_dataPath, result != 0 ? result : ESTALE);
        return nullptr;
    }
    error = {};
    LmdbTree tree;
    const auto last = StateBefore(txn);
    m_isDurable = IsAsWritten(last); // as a mark is written after its transaction
    const bool sound = tree.Open(m_map, m_map.Size(), last) && (m_isDurable || tree.VerifyStructure());
    if (!sound) {
        error = DescribeDamage(address, tree.Cause());
    }
    if (!sound || !CheckState(address, m_dataPath, tree, last, error)) {
        mdb_txn_abort(txn);
        EndTurn();
        Release(0);
        return nullptr;
    }
    m_writer = std::this_thread::get_id();
    return txn;
}

// Whether the data file is as this process left it, or as a mark says. Those who may write the store could make a false
// one, and trust each other.
bool LmdbEnvironment::IsAsWritten(std::uint64_t last) const
{
    struct stat data = {};
    if (fstat(m_dataFile.Get(), &data) != 0) {
        return false;
    }
    const auto now = MarkOf(data, last);
    if (m_ownMark.IsOf(now)) {
        return true;
    }
    LmdbMark mark;
    return ReadMark(m_lockFile, mark) && mark.IsOf(now);
}

int LmdbEnvironment::MakeDurable() noexcept
{
    const auto status = m_isDurable ? 0 : mdb_env_sync(m_env, 1);
    m_isDurable = status == 0;
    return status;
}

void LmdbEnvironment::EndWrite(int status, bool isCommitted) noexcept
{
    m_writer = std::thread::id();
    if (status == 0 && (isCommitted || !m_isDurable)) {
        m_isDurable = m_isDurable || isCommitted;
        struct stat data = {};
        if (MakeDurable() == 0 && fstat(m_dataFile.Get(), &data) == 0 && data.st_nlink > 0) {
            m_ownMark = MarkOf(data, LastTransaction(m_dataFile));
            WriteMark(m_lockFile, m_ownMark);
        }
    }
    EndTurn();
    Release(status);
}

void LmdbEnvironment::Release(int status) noexcept
{
    const std::lock_guard lock(m_mutex);
    m_full = m_full || status == MDB_MAP_FULL;
    m_broken = m_broken || status == MDB_PANIC;
    if (--m_active == 0) {
        m_ended.notify_all();
    }
}

bool LmdbEnvironment::Exchange(const std::string& address, MDB_txn* txn, const FileDescriptor& fresh, std::string& name,
                               Error& error)
{
    auto result = m_folder.Place(fresh, name, true);
    if (result == 0) {
        result = m_folder.Sync();
    }
    struct stat data = {};
    if (result == 0 && fstat(fresh.Get(), &data) == 0) {
        m_ownMark = MarkOf(data, StateBefore(txn));
        WriteMark(m_lockFile, m_ownMark);
    }
    if (result != 0) {
        error = LmdbError(address, "replace", m_dataPath, result);
    }
    return result == 0;
}

bool LmdbEnvironment::Describe(const std::string& address, Condition& condition, Error& error)
{
    condition = {};
    std::string cause;
    struct stat data = {};
    const auto look = [&](LmdbTree& tree, std::uint64_t number) {
        (void)fstat(m_dataFile.Get(), &data);
        condition.hasLock = !m_isCopied;
        condition.fileSize = static_cast<std::uint64_t>(data.st_size);
        condition.pageSize = tree.PageSize();
        condition.transaction = number;
        condition.modified = data.st_mtim.tv_sec;
        if (!tree.CountPages(condition.usedPages, condition.freePages)) {
            cause = tree.Cause();
        }
    };
    if (!LookAt(address, look, error)) {
        return false;
    }
    if (!cause.empty()) {
        error = DescribeDamage(address, cause);
        return false;
    }
    if (m_isCopied) {
        return true;
    }
    LmdbMark mark;
    if (ReadMark(m_lockFile, mark) && mark.inode == data.st_ino && mark.transaction == condition.transaction) {
        condition.lastWriter = static_cast<long>(mark.process);
    }
    condition.writer = FindWriter();
    // A line for each: process, thread, transaction or "-".
    const auto take = [](const char* line, void* to) {
        long process = 0;
        char thread[64];
        unsigned long long transaction = 0;
        if (sscanf(line, "%ld %63s %llu", &process, thread, &transaction) == 3) {
            static_cast<std::vector<Reader>*>(to)->push_back({process, transaction});
        }
        return 0;
    };
    const std::lock_guard lock(m_mutex);
    (void)mdb_reader_list(m_env, take, &condition.readers);
    return true;
}

} // namespace wqspcfg
