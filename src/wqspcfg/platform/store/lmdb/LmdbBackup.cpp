#include "wqspcfg/platform/store/lmdb/LmdbBackup.h"

#include "wqspcfg/platform/store/AtomicFile.h"
#include "wqspcfg/platform/store/FlatKey.h"
#include "wqspcfg/platform/store/lmdb/LmdbEnvironment.h"
#include "wqspcfg/platform/store/lmdb/LmdbFiles.h"
#include "wqspcfg/platform/store/lmdb/LmdbFormat.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <memory>
#include <sstream>
#include <unistd.h>
#include <utility>

namespace wqspcfg {

namespace {

constexpr std::size_t kSpareRoom = std::size_t{16} << 20;

void Count(std::string_view name, BackupCounts& counts)
{
    const auto mark = name.find('\0');
    ++(name.substr(std::min(mark, name.size())).starts_with(kValueMark) ? counts.values : counts.keys);
}

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
        Count(name, counts);
        return status == 0;
    });
    return scanned == Lookup::Found;
}

// False when the tree is damaged, in a page or in a record.
bool CountRecords(LmdbTree& tree, BackupCounts& counts)
{
    return tree.Scan({}, [&](std::string_view name, std::string_view) {
        if (name != kStateName) {
            Count(name, counts);
        }
        return true;
    }) == Lookup::Found;
}

// A state of a store for as long as the object lives.
class ReadState
{
  public:
    explicit ReadState(std::shared_ptr<LmdbEnvironment> environment) : m_environment(std::move(environment)) {}
    ~ReadState()
    {
        if (m_isBegun) {
            m_environment->EndRead(m_txn);
        }
    }
    ReadState(const ReadState&) = delete;
    ReadState& operator=(const ReadState&) = delete;

    bool Begin(const std::string& address, Error& error)
    {
        m_isBegun = m_environment->BeginRead(address, m_txn, tree, error);
        return m_isBegun;
    }

    LmdbTree tree;

  private:
    std::shared_ptr<LmdbEnvironment> m_environment;
    MDB_txn* m_txn = nullptr;
    bool m_isBegun = false;
};

// A backup in memory, found sound.
class Backup
{
  public:
    bool Read(const std::string& path, Error& error)
    {
        struct stat status = {};
        const auto file = OpenFile(path, O_RDONLY | O_NONBLOCK);
        if (!file) {
            error = LmdbError({}, "open", path, errno);
            return false;
        }
        if (!CheckFile({}, path, file, status, error)) {
            return false;
        }
        if (const auto result = m_map.Read(file.Get()); result != 0) {
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
        environment.EndWrite(status, true);
        if (status == 0) {
            return true;
        }
        if (status != MDB_MAP_FULL || tries == kMostTries) {
            error = environment.Describe(address, "write", status);
            return false;
        }
    }
}

// Whoever can use the data file that is there can use the new one. An errno value, or 0.
int KeepRights(const LmdbFolder& folder, const ActAsOwner& owner, const FileDescriptor& fresh)
{
    struct stat model = {};
    int status = 0;
    if (!folder.GetModel(model, status)) {
        // A file that is none of the store's own gives no rights away.
        return status == ENOENT || status == 0 ? 0 : status;
    }
    // Where it cannot get the group, whose members are others then, those have what both had.
    const bool isGiven = owner.Give(fresh, model) == 0;
    const auto others = model.st_mode & (model.st_mode >> 3) & 7U;
    return fchmod(fresh.Get(), isGiven ? model.st_mode & 0777U : (model.st_mode & 0700U) | others) != 0 ? errno : 0;
}

// Another file in the place of one that is damaged or missing.
bool RestoreAside(const std::string& address, const std::string& directory, Backup& backup, BackupCounts& counts,
                  std::string& kept, Error& error)
{
    LmdbFolder folder;
    if (!folder.Open(address, directory, true, error) || !folder.CheckMaking(address, error)) {
        return false;
    }
    const ActAsOwner owner(folder);
    if (!owner.Check(address, folder, error)) {
        return false;
    }
    const auto target = folder.PathOf(kDataName);
    std::string name;
    int status = 0;
    bool done = false;
    {
        const auto fresh = folder.MakeFile(name);
        auto result = fresh ? KeepRights(folder, owner, fresh) : errno;
        if (result == 0) {
            result = WriteStore(fresh, 2 * backup.Size() + kSpareRoom, [&](MDB_txn* txn, MDB_dbi dbi) {
                return CopyRecords(backup.tree, txn, dbi, counts, status) ? status : MDB_CORRUPTED;
            });
        }
        if (result != 0) {
            error = LmdbError(address, "write", target, LmdbWriteStatus(directory, result));
        }
        done = result == 0 && LmdbEnvironment::Replace(address, folder, owner, fresh, name, kept, error);
    }
    if (!name.empty()) {
        (void)unlinkat(folder.Get(), name.c_str(), 0);
    }
    return done;
}

} // namespace

bool BackUpLmdb(const std::string& address, const std::string& directory, const std::string& file, BackupCounts& counts,
                Error& error)
{
    const auto environment = LmdbEnvironment::Open(address, directory, false, 0, error);
    if (!environment) {
        return false;
    }
    struct stat data = {};
    AtomicFile fresh;
    // It may hold passwords: whoever cannot read the store cannot read its backup.
    if (!fresh.Open(file, {environment->DataPath()}, error, AtomicFile::Replaces::Backups)) {
        return false;
    }
    if (stat(environment->DataPath().c_str(), &data) != 0) {
        error = LmdbError({}, "write", file, errno);
        return false;
    }
    ReadState state(environment);
    if (!state.Begin(address, error)) {
        return false;
    }
    bool isSound = true;
    int status = 0;
    const auto parent = std::filesystem::path(file).parent_path().string();
    const auto room = 2 * static_cast<std::size_t>(data.st_size) + kSpareRoom;
    const FileDescriptor written(fcntl(fresh.Descriptor(), F_DUPFD_CLOEXEC, kLeastDescriptor));
    const auto result = WriteStore(written, room, [&](MDB_txn* txn, MDB_dbi dbi) {
        isSound = CopyRecords(state.tree, txn, dbi, counts, status);
        return isSound ? status : MDB_CORRUPTED;
    });
    if (!isSound) {
        error = environment->DescribeDamage(address, state.tree.Cause());
        return false;
    }
    if (result != 0) {
        error = LmdbError({}, "write", file, LmdbWriteStatus(parent.empty() ? "." : parent, result));
        return false;
    }
    return fresh.Commit(error);
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

// --- Upkeep ----------------------------------------------------------------------------------------------------------

namespace {

// While this process writes, and so nobody else does.
bool CompactWithin(LmdbEnvironment& environment, const std::string& address, MDB_txn* txn, CompactCounts& counts,
                   Error& error)
{
    const auto& folder = environment.Folder();
    const ActAsOwner owner(folder);
    if (!owner.Check(address, folder, error)) {
        return false;
    }
    LmdbTree tree;
    const auto last = LmdbEnvironment::StateBefore(txn);
    if (!tree.Open(environment.Map(), environment.Map().Size(), last)) {
        error = environment.DescribeDamage(address, tree.Cause());
        return false;
    }
    counts.before = environment.Map().Size();
    std::string name;
    const auto fresh = folder.MakeFile(name);
    bool isSound = true;
    int status = 0;
    auto result = fresh ? KeepRights(folder, owner, fresh) : errno;
    if (result == 0) {
        result = WriteStore(
            fresh, 2 * counts.before + kSpareRoom,
            [&](MDB_txn* into, MDB_dbi dbi) {
                isSound = CopyRecords(tree, into, dbi, counts, status);
                return isSound ? status : MDB_CORRUPTED;
            },
            last);
    }
    struct stat data = {};
    bool done = false;
    if (!isSound) {
        error = environment.DescribeDamage(address, tree.Cause());
    } else if (result != 0) {
        error = environment.Describe(address, "write", result);
    } else if (fstat(fresh.Get(), &data) == 0) {
        counts.after = static_cast<std::uint64_t>(data.st_size);
        done = environment.Exchange(address, txn, fresh, name, error);
    }
    if (!name.empty()) {
        (void)unlinkat(folder.Get(), name.c_str(), 0);
    }
    return done;
}

// What /proc tells of a process.
void DescribeProcess(StoreReader& reader)
{
    std::ifstream file("/proc/" + std::to_string(reader.process) + "/stat");
    std::string text{std::istreambuf_iterator<char>(file), {}};
    const auto open = text.find('(');
    const auto close = text.rfind(')');
    timespec now{};
    if (open == std::string::npos || close == std::string::npos || clock_gettime(CLOCK_BOOTTIME, &now) != 0) {
        return;
    }
    reader.program = text.substr(open + 1, close - open - 1);
    constexpr int kStart = 20; // fields behind the name
    std::istringstream fields(text.substr(close + 1));
    std::string field;
    for (int i = 0; i < kStart; ++i) {
        fields >> field;
    }
    const auto ticks = std::strtoll(field.c_str(), nullptr, 10);
    reader.seconds = std::max(std::int64_t{0}, static_cast<std::int64_t>(now.tv_sec - ticks / sysconf(_SC_CLK_TCK)));
}

} // namespace

bool CompactLmdb(const std::string& address, const std::string& directory, CompactCounts& counts, Error& error)
{
    const auto environment = LmdbEnvironment::Open(address, directory, false, 0, error);
    if (!environment) {
        return false;
    }
    auto* txn = environment->BeginWrite(address, error);
    if (txn == nullptr) {
        return false;
    }
    const bool done = CompactWithin(*environment, address, txn, counts, error);
    mdb_txn_abort(txn);
    environment->EndWrite(0, false);
    return done;
}

bool GetLmdbStatus(const std::string& address, const std::string& directory, bool verify, StoreStatus& status,
                   Error& error)
{
    const auto environment = LmdbEnvironment::Open(address, directory, false, 0, error);
    LmdbEnvironment::Condition condition;
    if (!environment || !environment->Describe(address, condition, error)) {
        return false;
    }
    status.path = environment->DataPath();
    status.fileSize = condition.fileSize;
    status.usedSize = condition.usedPages * condition.pageSize;
    status.freeSize = condition.freePages * condition.pageSize;
    status.commits = condition.transaction;
    status.lastCommit = condition.modified;
    status.lastWriter = condition.lastWriter;
    status.writer = condition.writer;
    status.knowsUsers = condition.hasLock;
    for (const auto& [process, transaction] : condition.readers) {
        StoreReader reader;
        reader.process = process;
        reader.behind = condition.transaction > transaction ? condition.transaction - transaction : 0;
        DescribeProcess(reader);
        status.readers.push_back(std::move(reader));
    }
    if (!verify) {
        return true;
    }
    return environment->LookAt(
        address,
        [&status](LmdbTree& tree, std::uint64_t) {
            status.isSound = tree.VerifyStructure() && CountRecords(tree, status.counts);
            status.damage = status.isSound ? "" : tree.Cause();
        },
        error);
}

} // namespace wqspcfg
