#include "wqspcfg/platform/store/lmdb/LmdbBackup.h"

#include "wqspcfg/platform/store/FlatKey.h"
#include "wqspcfg/platform/store/lmdb/LmdbEnvironment.h"
#include "wqspcfg/platform/store/lmdb/LmdbFiles.h"
#include "wqspcfg/platform/store/lmdb/LmdbFormat.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <memory>
#include <system_error>
#include <utility>

namespace wqspcfg {

namespace {

constexpr std::size_t kSpareRoom = std::size_t{16} << 20;

// All records that `tree` shows, in order, into an empty store. False when the tree is damaged; `status` tells of the
// store that is written.
bool CopyRecords(LmdbTree& tree, MDB_txn* txn, MDB_dbi dbi, BackupCounts& counts, int& status)
{
    counts = {};
    status = 0;
    const auto scanned = tree.Scan({}, [&](std::string_view name, std::string_view record) {
        if (name == kStateName) {
            return true; // each store has its own
        }
        MDB_val key{name.size(), const_cast<char*>(name.data())};
        MDB_val value{record.size(), const_cast<char*>(record.data())};
        status = mdb_put(txn, dbi, &key, &value, MDB_APPEND);
        const auto mark = name.find('\0');
        ++(name.substr(std::min(mark, name.size())).starts_with(kValueMark) ? counts.values : counts.keys);
        return status == 0;
    });
    return scanned == Lookup::Found;
}

// A state of a store for as long as the object lives.
class ReadState
{
  public:
    explicit ReadState(std::shared_ptr<LmdbEnvironment> environment) : m_environment(std::move(environment)) {}
    ~ReadState()
    {
        if (m_txn != nullptr) {
            m_environment->EndRead(m_txn);
        }
    }
    ReadState(const ReadState&) = delete;
    ReadState& operator=(const ReadState&) = delete;

    bool Begin(const std::string& address, Error& error)
    {
        m_txn = m_environment->BeginRead(address, tree, error);
        return m_txn != nullptr;
    }

    LmdbTree tree;

  private:
    std::shared_ptr<LmdbEnvironment> m_environment;
    MDB_txn* m_txn = nullptr;
};

// A file that goes with the object unless it was renamed.
class TemporaryFile
{
  public:
    explicit TemporaryFile(const std::string& beside) : m_path(beside + ".XXXXXX"), m_file(mkstemp(m_path.data())) {}
    ~TemporaryFile()
    {
        if (m_file.Get() >= 0 && !m_isRenamed) {
            (void)unlink(m_path.c_str());
        }
    }
    TemporaryFile(const TemporaryFile&) = delete;
    TemporaryFile& operator=(const TemporaryFile&) = delete;

    int Get() const { return m_file.Get(); }
    const std::string& Path() const { return m_path; }
    // Durably. An errno value, or 0.
    int RenameTo(const std::string& path)
    {
        if (fsync(m_file.Get()) != 0 || rename(m_path.c_str(), path.c_str()) != 0) {
            return errno;
        }
        m_isRenamed = true;
        const auto parent = std::filesystem::path(path).parent_path().string();
        return SyncDirectory(parent.empty() ? "." : parent);
    }

  private:
    std::string m_path;
    FileDescriptor m_file;
    bool m_isRenamed = false;
};

// A backup in memory, found sound.
class Backup
{
  public:
    bool Read(const std::string& path, Error& error)
    {
        struct stat status = {};
        if (!CheckFile({}, path, status, error)) {
            return false;
        }
        if (const auto result = m_map.Read(path.c_str()); result != 0) {
            error = LmdbError({}, "read", path, result);
            return false;
        }
        const auto last = LastTransaction();
        if (!tree.Open(m_map, m_map.Room(), last) || !tree.VerifyStructure()) {
            error = DamagedFile({}, path, tree.Cause());
            return false;
        }
        if (!LmdbEnvironment::CheckState({}, path, tree, last, error)) {
            return false;
        }
        // Every check sum.
        if (tree.Scan({}, [](auto&&...) { return true; }) == Lookup::Failed) {
            error = DamagedFile({}, path, tree.Cause());
            return false;
        }
        return true;
    }

    std::size_t Size() const { return m_map.Room(); }

    LmdbTree tree;

  private:
    // Both heads have their magic number and page size right.
    std::uint64_t LastTransaction() const
    {
        std::uint64_t last = 0;
        std::size_t pageSize = 0;
        for (std::size_t head = 0; head < 2; ++head) {
            const auto at = head * pageSize + sizeof(lmdb::PageHeader);
            lmdb::Meta meta{};
            if (at + sizeof meta <= m_map.Room()) {
                std::memcpy(&meta, m_map.Data() + at, sizeof meta);
            }
            pageSize = meta.freeList.pad;
            last = std::max(last, meta.transaction);
        }
        return last;
    }

    LmdbMap m_map;
};

bool IsSameFile(const std::string& path, const struct stat& file)
{
    struct stat other = {};
    return stat(path.c_str(), &other) == 0 && other.st_dev == file.st_dev && other.st_ino == file.st_ino;
}

// Within one transaction of the store as it is.
bool RestoreWithin(LmdbEnvironment& environment, const std::string& address, Backup& backup, BackupCounts& counts,
                   Error& error)
{
    constexpr int kMostTries = 16; // each doubles the map
    for (int tries = 1;; ++tries) {
        auto* txn = environment.BeginWrite(address, error);
        if (txn == nullptr) {
            return false;
        }
        const auto dbi = environment.Dbi();
        auto status = mdb_drop(txn, dbi, 0);
        if (status == 0) {
            status = LmdbEnvironment::PutState(txn, dbi);
        }
        if (status == 0 && !CopyRecords(backup.tree, txn, dbi, counts, status)) {
            status = MDB_CORRUPTED; // it was sound a moment ago, in memory
        }
        if (status == 0) {
            status = mdb_txn_commit(txn);
        } else {
            mdb_txn_abort(txn);
        }
        environment.EndWrite(status);
        if (status == 0) {
            return true;
        }
        if (status != MDB_MAP_FULL || tries == kMostTries) {
            error = environment.Describe(address, "write", status);
            return false;
        }
    }
}

// Another file in the place of one that is damaged or missing.
bool RestoreAside(const std::string& address, const std::string& directory, Backup& backup, BackupCounts& counts,
                  std::string& kept, Error& error)
{
    std::error_code failure;
    std::filesystem::create_directories(directory, failure);
    if (failure) {
        error = LmdbError(address, "create", directory, failure.value());
        return false;
    }
    const auto target = directory + "/data.mdb";
    TemporaryFile fresh(target);
    // Whoever could use the old file can use the new one.
    struct stat model = {};
    const bool isThere = stat(target.c_str(), &model) == 0;
    if (fresh.Get() < 0 || (!isThere && stat(directory.c_str(), &model) != 0) ||
        fchmod(fresh.Get(), isThere ? model.st_mode & 0777 : model.st_mode & 0666) != 0 ||
        (geteuid() == 0 && fchown(fresh.Get(), model.st_uid, model.st_gid) != 0)) {
        error = LmdbError(address, "create a store in", directory, errno);
        return false;
    }
    int status = 0;
    auto result = WriteStore(fresh.Path(), 2 * backup.Size() + kSpareRoom, [&](MDB_txn* txn, MDB_dbi dbi) {
        return CopyRecords(backup.tree, txn, dbi, counts, status) ? status : MDB_CORRUPTED;
    });
    if (result == 0 && fsync(fresh.Get()) != 0) {
        result = errno;
    }
    if (result != 0) {
        error = LmdbError(address, "write", target, LmdbWriteStatus(fresh.Path(), result));
        return false;
    }
    return LmdbEnvironment::Replace(address, directory, fresh.Path(), kept, error);
}

} // namespace

bool BackUpLmdb(const std::string& address, const std::string& directory, const std::string& file, BackupCounts& counts,
                Error& error)
{
    const auto environment = LmdbEnvironment::Open(address, directory, false, 0, error);
    if (!environment) {
        return false;
    }
    // A link stays a link.
    const std::unique_ptr<char, decltype(&std::free)> real(realpath(file.c_str(), nullptr), &std::free);
    const auto path = real ? std::string(real.get()) : file;
    struct stat old = {};
    if (stat(path.c_str(), &old) == 0) {
        if (!S_ISREG(old.st_mode)) {
            error = {ErrorKind::BadArgument, path + " is not a regular file"};
            return false;
        }
        for (const auto* name : {"/data.mdb", "/lock.mdb"}) {
            if (IsSameFile(directory + name, old)) {
                error = {ErrorKind::BadArgument, path + " is a file of the store itself"};
                return false;
            }
        }
    }
    struct stat data = {};
    TemporaryFile fresh(path);
    // It may hold passwords: whoever cannot read the store cannot read its backup.
    if (fresh.Get() < 0 || stat(environment->DataPath().c_str(), &data) != 0 ||
        fchmod(fresh.Get(), data.st_mode & 0777) != 0) {
        error = LmdbError({}, "write", path, errno);
        return false;
    }
    ReadState state(environment);
    if (!state.Begin(address, error)) {
        return false;
    }
    bool isSound = true;
    int status = 0;
    const auto room = 2 * static_cast<std::size_t>(data.st_size) + kSpareRoom;
    auto result = WriteStore(fresh.Path(), room, [&](MDB_txn* txn, MDB_dbi dbi) {
        isSound = CopyRecords(state.tree, txn, dbi, counts, status);
        return isSound ? status : MDB_CORRUPTED;
    });
    if (!isSound) {
        error = environment->DescribeDamage(address, state.tree.Cause());
        return false;
    }
    result = result != 0 ? LmdbWriteStatus(fresh.Path(), result) : fresh.RenameTo(path);
    if (result != 0) {
        error = LmdbError({}, "write", path, result);
    }
    return result == 0;
}

bool RestoreLmdb(const std::string& address, const std::string& directory, const std::string& path,
                 BackupCounts& counts, std::string& kept, Error& error)
{
    Backup backup;
    if (!backup.Read(path, error)) {
        return false;
    }
    Error failure;
    if (const auto environment = LmdbEnvironment::Open(address, directory, false, 0, failure)) {
        if (RestoreWithin(*environment, address, backup, counts, failure)) {
            return true;
        }
    }
    if (failure.kind != ErrorKind::Damaged && failure.kind != ErrorKind::NotFound) {
        error = std::move(failure);
        return false;
    }
    if (RestoreAside(address, directory, backup, counts, kept, error)) {
        return true;
    }
    if (failure.kind == ErrorKind::Damaged) {
        error.message = failure.message + "; " + error.message;
    }
    return false;
}

} // namespace wqspcfg
