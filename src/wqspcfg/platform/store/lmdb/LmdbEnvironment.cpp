#include "wqspcfg/platform/store/lmdb/LmdbEnvironment.h"

#include "wqspcfg/platform/store/Record.h"
#include "wqspcfg/platform/store/lmdb/LmdbFiles.h"
#include "wqspcfg/platform/store/lmdb/LmdbFormat.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <condition_variable>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <fcntl.h>
#include <filesystem>
#include <map>
#include <pthread.h>
#include <sys/resource.h>
#include <sys/statvfs.h>
#include <system_error>
#include <unistd.h>

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

std::atomic<unsigned> g_forks{0};

// The open environments by the real path of their directories. An environment is closed with the mutex held: closing
// the lock file while another environment has it open would drop that one's locks.
struct Registry
{
    std::mutex mutex;
    std::condition_variable closed;
    std::map<std::string, std::weak_ptr<LmdbEnvironment>> open;

    Registry()
    {
        pthread_atfork([] { Get().mutex.lock(); }, [] { Get().mutex.unlock(); },
                       [] {
                           ++g_forks;
                           Get().open.clear();
                           Get().mutex.unlock();
                       });
    }

    static Registry& Get()
    {
        static auto* registry = new Registry; // used until the process ends, by static objects too
        return *registry;
    }
};

} // namespace

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
    if (create && stat(dataPath.c_str(), &status) != 0 && (errno == ENOENT || errno == ENOTDIR) &&
        !CreateStore(address, directory, error)) {
        return nullptr;
    }
    const std::unique_ptr<char, decltype(&std::free)> real(realpath(directory.c_str(), nullptr), &std::free);
    if (!real) {
        error = LmdbError(address, "open", directory, errno);
        return nullptr;
    }
    const std::string path(real.get());

    auto& registry = Registry::Get();
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
        auto& open = Registry::Get();
        const std::lock_guard closing(open.mutex);
        delete environment;
        open.open.erase(path);
        open.closed.notify_all();
    };
    auto environment = std::unique_ptr<LmdbEnvironment>(new LmdbEnvironment(path, mapSize));
    if (!environment->OpenFiles(address, error)) {
        return nullptr;
    }
    std::shared_ptr<LmdbEnvironment> shared(environment.release(), close);
    registry.open[path] = shared;
    return shared;
}

bool LmdbEnvironment::Replace(const std::string& address, const std::string& directory, const std::string& fresh,
                              std::string& kept, Error& error)
{
    const std::unique_ptr<char, decltype(&std::free)> real(realpath(directory.c_str(), nullptr), &std::free);
    if (!real) {
        error = LmdbError(address, "open", directory, errno);
        return false;
    }
    auto& registry = Registry::Get();
    const std::lock_guard opening(registry.mutex);
    if (registry.open.contains(real.get())) {
        error = {ErrorKind::Io, address + ": this process has the store open, so that it cannot be exchanged"};
        return false;
    }
    if (const auto result = ReserveLockFile(directory); result != 0) {
        error = LmdbError(address, "open", directory + "/lock.mdb", result);
        return false;
    }
    // Every process that has the store open holds a lock on the lock file's first byte, and none can open it while this
    // one holds that alone.
    const auto lockPath = directory + "/lock.mdb";
    const FileDescriptor lockFile(open(lockPath.c_str(), O_RDWR | O_CLOEXEC));
    struct flock lock = {};
    lock.l_type = F_WRLCK;
    lock.l_whence = SEEK_SET;
    lock.l_len = 1;
    if (lockFile.Get() < 0) {
        error = LmdbError(address, "open", lockPath, errno);
        return false;
    }
    if (fcntl(lockFile.Get(), F_SETLK, &lock) != 0) {
        const auto failure = errno;
        const bool isHeld = failure == EACCES || failure == EAGAIN;
        if (isHeld && fcntl(lockFile.Get(), F_GETLK, &lock) == 0 && lock.l_type != F_UNLCK) {
            error = {ErrorKind::Io, address + ": process " + std::to_string(lock.l_pid) + " has " + directory +
                                        " open; end it and all others that use the store, and try again"};
        } else {
            error = LmdbError(address, "lock", lockPath, failure);
        }
        return false;
    }

    const auto target = directory + "/data.mdb";
    const auto old = target + ".damaged";
    kept.clear();
    auto result = 0;
    if (access(target.c_str(), F_OK) == 0) {
        (void)unlink(old.c_str());
        // Some file systems have no hard links.
        result = link(target.c_str(), old.c_str()) != 0 && rename(target.c_str(), old.c_str()) != 0 ? errno : 0;
        kept = old;
    }
    if (result == 0 && rename(fresh.c_str(), target.c_str()) != 0) {
        result = errno;
    }
    if (result == 0) {
        result = SyncDirectory(directory);
    }
    // The lock file holds the number of the last transaction, and a process that waits for the lock will believe it.
    MDB_env* env = nullptr;
    if (result == 0) {
        result = mdb_env_create(&env);
    }
    if (result == 0) {
        (void)mdb_env_set_maxreaders(env, kMaxReaders);
        result = mdb_env_open(env, directory.c_str(), MDB_NOTLS, 0664);
        mdb_env_close(env);
    }
    if (result != 0) {
        error = LmdbError(address, "replace", target, result);
    }
    return result == 0;
}

bool LmdbEnvironment::OpenFiles(const std::string& address, Error& error)
{
    struct stat status = {};
    if (!CheckFile(address, m_dataPath, status, error)) {
        return false;
    }
    m_whyReadOnly.clear();
    int result = ReserveLockFile(m_directory);
    if (result != 0) {
        error = LmdbError(address, "open", m_directory + "/lock.mdb", result);
        return false;
    }
    for (const unsigned flags : {0U, unsigned{MDB_RDONLY}, unsigned{MDB_RDONLY} | unsigned{MDB_NOLOCK}}) {
        const auto needed = 2 * static_cast<std::size_t>(status.st_size) + kLeastMapSize;
        m_mapSize = std::max(m_mapSize, needed);
        do {
            result = mdb_env_create(&m_env);
            if (result != 0) {
                break;
            }
            (void)mdb_env_set_maxreaders(m_env, kMaxReaders);
            (void)mdb_env_set_mapsize(m_env, m_mapSize);
            result = mdb_env_open(m_env, m_directory.c_str(), MDB_NOTLS | flags, 0664);
            if (result != 0) {
                mdb_env_close(m_env);
                m_env = nullptr;
            }
            // A process may be allowed less address space.
        } while (result == ENOMEM && (m_mapSize /= 2) >= needed);
        if (result != EACCES && result != EPERM && result != EROFS) {
            break;
        }
        if (m_whyReadOnly.empty()) {
            m_whyReadOnly = LmdbWords(result);
        }
    }
    if (result != 0) {
        error = LmdbError(address, "open", m_dataPath, result);
        return false;
    }
    m_device = status.st_dev;
    m_inode = status.st_ino;
    m_fileSize = static_cast<std::size_t>(status.st_size);
    m_broken = false;
    m_full = false;

    int dead = 0;
    (void)mdb_reader_check(m_env, &dead);

    MDB_txn* txn = nullptr;
    result = m_map.Open(m_dataPath.c_str(), m_mapSize);
    if (result == 0) {
        result = mdb_txn_begin(m_env, nullptr, MDB_RDONLY, &txn);
    }
    if (result == 0) {
        result = mdb_dbi_open(txn, nullptr, 0, &m_dbi);
        mdb_txn_abort(txn);
    }
    if (result != 0) {
        error = LmdbError(address, "read", m_dataPath, result);
        CloseFiles();
    }
    return result == 0;
}

void LmdbEnvironment::CloseFiles() noexcept
{
    for (auto* txn : m_idle) {
        mdb_txn_abort(txn);
    }
    m_idle.clear();
    if (m_env != nullptr) {
        mdb_env_close(m_env);
        m_env = nullptr;
    }
    m_map.Close();
    m_verified = false;
}

int LmdbEnvironment::PutState(MDB_txn* txn, MDB_dbi dbi)
{
    const std::uint64_t number = mdb_txn_id(txn);
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

bool LmdbEnvironment::Prepare(const std::string& address, Access access, Error& error)
{
    const auto now = CoarseMilliseconds();
    if (access == Access::Read && m_env != nullptr && !m_broken && now < m_nextLook) {
        return true;
    }
    m_nextLook = 0;
    struct stat status = {};
    if (stat(m_dataPath.c_str(), &status) != 0) {
        error = LmdbError(address, "use", m_dataPath, errno);
        return false;
    }
    const bool replaced = status.st_dev != m_device || status.st_ino != m_inode;
    const bool mayWriteNow = access == Access::Write && !m_whyReadOnly.empty() && m_active == 0 &&
                             faccessat(AT_FDCWD, m_dataPath.c_str(), W_OK, AT_EACCESS) == 0;
    if (m_env != nullptr && !replaced && !m_broken && !mayWriteNow) {
        m_fileSize = static_cast<std::size_t>(status.st_size);
        m_nextLook = now + kLookInterval;
        return true;
    }
    if (m_active > 0) {
        error = {ErrorKind::Io, address + ": " + m_dataPath + (replaced ? " has been replaced" : " has failed") +
                                    " while it is in use; end this process's transactions on it and try again"};
        return false;
    }
    CloseFiles();
    return OpenFiles(address, error);
}

// Only while no transaction of this process is active. 0 is the size that another process has chosen.
int LmdbEnvironment::Grow(std::size_t size)
{
    auto result = mdb_env_set_mapsize(m_env, size);
    if (result == 0) {
        MDB_envinfo info{};
        (void)mdb_env_info(m_env, &info);
        m_mapSize = info.me_mapsize;
        m_map.Close();
        result = m_map.Open(m_dataPath.c_str(), m_mapSize);
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

MDB_txn* LmdbEnvironment::BeginRead(const std::string& address, LmdbTree& tree, Error& error)
{
    const std::lock_guard lock(m_mutex);
    if (!Prepare(address, Access::Read, error)) {
        return nullptr;
    }
    MDB_txn* txn = nullptr;
    for (int tries = 0;; ++tries) {
        auto result = BeginRenewed(txn);
        if (result == MDB_PANIC) {
            // A write failed so badly that LMDB wants its environment opened anew.
            m_broken = true;
            if (!Prepare(address, Access::Read, error)) {
                return nullptr;
            }
            result = BeginRenewed(txn);
        }
        if (result != 0) {
            error = LmdbError(address, "read", m_dataPath, result);
            return nullptr;
        }
        if (tree.Open(m_map, m_fileSize, mdb_txn_id(txn))) {
            break;
        }
        // Writers may have gone on by two transactions between the two steps.
        mdb_txn_reset(txn);
        m_idle.push_back(txn);
        if (tries == 3) {
            error = DescribeDamage(address, tree.Cause());
            return nullptr;
        }
    }
    if (!CheckState(address, m_dataPath, tree, mdb_txn_id(txn), error)) {
        mdb_txn_reset(txn);
        m_idle.push_back(txn);
        return nullptr;
    }
    ++m_active;
    return txn;
}

void LmdbEnvironment::EndRead(MDB_txn* txn) noexcept
{
    mdb_txn_reset(txn);
    const std::lock_guard lock(m_mutex);
    m_idle.push_back(txn);
    --m_active;
}

MDB_txn* LmdbEnvironment::BeginWrite(const std::string& address, Error& error)
{
    if (m_writer == std::this_thread::get_id()) {
        error = {ErrorKind::BadArgument, address + ": this thread is already writing to the store"};
        return nullptr;
    }
    int result = 0;
    MDB_txn* txn = nullptr;
    for (int tries = 0; tries < 3; ++tries) {
        {
            const std::lock_guard lock(m_mutex);
            if (!Prepare(address, Access::Write, error)) {
                return nullptr;
            }
            if (!m_whyReadOnly.empty()) {
                error = {ErrorKind::AccessDenied, address + ": cannot write " + m_dataPath + ": " + m_whyReadOnly};
                return nullptr;
            }
            int dead = 0;
            (void)mdb_reader_check(m_env, &dead);
            if (m_active == 0) {
                MDB_envinfo info{};
                MDB_stat layout{};
                (void)mdb_env_info(m_env, &info);
                (void)mdb_env_stat(m_env, &layout);
                const auto used = (info.me_last_pgno + 1) * layout.ms_psize;
                if (result == MDB_MAP_RESIZED) {
                    (void)Grow(0);
                } else if (m_full || used > m_mapSize / 4 * 3) {
                    m_full = false;
                    (void)Grow(2 * std::max(m_mapSize, used));
                }
            }
            ++m_active;
        }
        // Waits for the writer of this or another process.
        result = mdb_txn_begin(m_env, nullptr, 0, &txn);
        if (result == 0) {
            break;
        }
        Release(result);
        if (result != MDB_MAP_RESIZED && result != MDB_PANIC) {
            break;
        }
    }
    if (result != 0) {
        error = LmdbError(address, "write", m_dataPath, result);
        return nullptr;
    }
    LmdbTree tree;
    const auto last = mdb_txn_id(txn) - 1;
    bool sound = tree.Open(m_map, m_map.Size(), last) && (m_verified || tree.VerifyStructure());
    if (!sound) {
        error = DescribeDamage(address, tree.Cause());
    }
    sound = sound && CheckState(address, m_dataPath, tree, last, error);
    if (!sound) {
        mdb_txn_abort(txn);
        Release(0);
        return nullptr;
    }
    m_verified = true;
    m_writer = std::this_thread::get_id();
    return txn;
}

void LmdbEnvironment::EndWrite(int status) noexcept
{
    m_writer = std::thread::id();
    Release(status);
}

void LmdbEnvironment::Release(int status) noexcept
{
    const std::lock_guard lock(m_mutex);
    --m_active;
    m_full = m_full || status == MDB_MAP_FULL;
    m_broken = m_broken || status == MDB_PANIC;
}

} // namespace wqspcfg
