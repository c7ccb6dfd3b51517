#include "wqspcfg/platform/store/lmdb/LmdbFiles.h"

#include "wqspcfg/platform/store/ForkSafe.h"
#include "wqspcfg/platform/store/Record.h"
#include "wqspcfg/platform/store/lmdb/LmdbEnvironment.h"
#include "wqspcfg/platform/store/lmdb/LmdbFormat.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cerrno>
#include <cstdint>
#include <fcntl.h>
#include <sys/resource.h>
#include <sys/statvfs.h>
#include <system_error>
#include <unistd.h>

namespace wqspcfg {

namespace {

ErrorKind KindOf(int status)
{
    switch (status) {
    case MDB_MAP_FULL:
    case MDB_TXN_FULL:
        return ErrorKind::NoSpace;
    case MDB_BAD_VALSIZE:
        return ErrorKind::TooLong;
    case MDB_CORRUPTED:
    case MDB_PAGE_NOTFOUND:
    case MDB_INVALID:
    case MDB_VERSION_MISMATCH:
    case MDB_CURSOR_FULL:
        return ErrorKind::Damaged;
    default:
        return KindOfSystemError(status);
    }
}

bool ReadMeta(int file, std::size_t offset, lmdb::Meta& meta)
{
    const auto size = static_cast<ssize_t>(sizeof meta);
    return pread(file, &meta, sizeof meta, static_cast<off_t>(offset + sizeof(lmdb::PageHeader))) == size;
}

// Whether there is no room, or no leave, to make the file noticeably longer.
bool IsNearlyFull(const std::string& path)
{
    constexpr std::uint64_t kLittle = std::uint64_t{4} << 20;
    struct statvfs system = {};
    struct stat file = {};
    rlimit limit{};
    if (statvfs(path.c_str(), &system) == 0 && std::uint64_t{system.f_bavail} * system.f_frsize < kLittle) {
        return true;
    }
    return stat(path.c_str(), &file) == 0 && getrlimit(RLIMIT_FSIZE, &limit) == 0 && limit.rlim_cur != RLIM_INFINITY &&
           static_cast<std::uint64_t>(file.st_size) + kLittle > limit.rlim_cur;
}

} // namespace

std::string ErrorPrefix(const std::string& address)
{
    return address.empty() ? address : address + ": ";
}

std::string LmdbWords(int status)
{
    switch (status) {
    case MDB_MAP_FULL:
        return "the address space reserved for the store is full; it grows with the next write";
    case MDB_TXN_FULL:
        return "too many changes for one transaction";
    case MDB_MAP_RESIZED:
        return "another process has enlarged the store; end this process's transactions on it and try again";
    case ENOMEM:
        return "this process is allowed too little memory or address space for it (ulimit -v)";
    case MDB_READERS_FULL:
        return "too many processes and threads are reading it";
    default:
        return status > 0 ? std::generic_category().message(status) : std::string(mdb_strerror(status));
    }
}

Error LmdbError(const std::string& address, std::string_view action, const std::string& path, int status)
{
    return {KindOf(status),
            ErrorPrefix(address) + "cannot " + std::string(action) + ' ' + path + ": " + LmdbWords(status)};
}

int LmdbWriteStatus(const std::string& path, int status)
{
    return status == EIO && IsNearlyFull(path) ? ENOSPC : status;
}

Error DamagedFile(const std::string& address, const std::string& path, std::string_view cause)
{
    return {ErrorKind::Damaged, ErrorPrefix(address) + path + " is damaged: " + std::string(cause)};
}

bool CheckFile(const std::string& address, const std::string& path, const FileDescriptor& file, struct stat& status,
               Error& error)
{
    if (fstat(file.Get(), &status) != 0) {
        error = LmdbError(address, "open", path, errno);
        return false;
    }
    if (!S_ISREG(status.st_mode)) {
        error = {ErrorKind::BadArgument, ErrorPrefix(address) + path + " is not a regular file"};
        return false;
    }
    const auto size = static_cast<std::size_t>(status.st_size);
    std::array<lmdb::Meta, 2> metas{};
    if (!ReadMeta(file.Get(), 0, metas[0])) {
        error = DamagedFile(address, path, "it has only " + std::to_string(size) + " bytes");
        return false;
    }
    if (metas[0].magic != lmdb::kMagic) {
        error = DamagedFile(address, path, "it does not begin as a store does");
        return false;
    }
    const std::size_t pageSize = metas[0].freeList.pad;
    if (pageSize < lmdb::kMinPageSize || pageSize > lmdb::kMaxPageSize || !std::has_single_bit(pageSize)) {
        error = DamagedFile(address, path, "its page size is " + std::to_string(pageSize));
        return false;
    }
    if (size < 2 * pageSize || size % pageSize != 0) {
        error = DamagedFile(address, path, "its length of " + std::to_string(size) + " bytes is cut short");
        return false;
    }
    if (!ReadMeta(file.Get(), pageSize, metas[1]) || metas[1].magic != lmdb::kMagic ||
        metas[1].version != metas[0].version || metas[1].freeList.pad != pageSize) {
        error = DamagedFile(address, path, "its second head is not that of a store, or another than its first");
        return false;
    }
    if (metas[0].version != lmdb::kDataVersion) {
        error = {ErrorKind::NewerFormat, ErrorPrefix(address) + path + " has LMDB's data version " +
                                             std::to_string(metas[0].version) + "; this program knows version " +
                                             std::to_string(lmdb::kDataVersion) + " only"};
        return false;
    }
    for (const auto& meta : metas) {
        if (meta.lastPage > lmdb::MostPages(size / pageSize)) {
            error = DamagedFile(address, path, "a head gives an impossible length");
            return false;
        }
        for (const auto* tree : {&meta.freeList, &meta.main}) {
            if (tree->root != lmdb::kNoPage && (tree->root < 2 || tree->root > meta.lastPage)) {
                error = DamagedFile(address, path, "a head points outside the store");
                return false;
            }
        }
    }
    return true;
}

std::uint64_t LastTransaction(const FileDescriptor& file)
{
    std::array<lmdb::Meta, 2> metas{};
    return ReadMeta(file.Get(), 0, metas[0]) && ReadMeta(file.Get(), metas[0].freeList.pad, metas[1])
               ? std::max(metas[0].transaction, metas[1].transaction)
               : 0;
}

LmdbMark MarkOf(const struct stat& data, std::uint64_t transaction)
{
    constexpr std::int64_t kSecond = 1'000'000'000;
    LmdbMark mark;
    mark.transaction = transaction;
    mark.inode = data.st_ino;
    mark.size = static_cast<std::uint64_t>(data.st_size);
    mark.changed = data.st_ctim.tv_sec * kSecond + data.st_ctim.tv_nsec;
    mark.modified = data.st_mtim.tv_sec * kSecond + data.st_mtim.tv_nsec;
    return mark;
}

namespace {

constexpr off_t kLmdbLocks = 33 << 10; // what LMDB uses of the lock file
// LMDB takes whatever is there for its table of readers: what follows is less than one more of its entries.
constexpr off_t kLockSize = kLmdbLocks + static_cast<off_t>(sizeof(LmdbMark));

// The rights of those who can write. Who could only read the lock file could keep others from it by locks, and do
// nothing else with it.
mode_t WritersOf(mode_t mode)
{
    mode_t rights = 0;
    for (const mode_t both : {mode_t{0600}, mode_t{0060}, mode_t{0006}}) {
        rights |= (mode & both) == both ? both : 0U;
    }
    return rights;
}

std::uint64_t SumOf(const LmdbMark& mark)
{
    constexpr auto kBehind = sizeof mark.sum;
    return NameSum({reinterpret_cast<const char*>(&mark) + kBehind, sizeof mark - kBehind});
}

} // namespace

bool ReadMark(const FileDescriptor& lockFile, LmdbMark& mark)
{
    return pread(lockFile.Get(), &mark, sizeof mark, kLmdbLocks) == static_cast<ssize_t>(sizeof mark) &&
           mark.sum == SumOf(mark) && mark.process != 0;
}

void WriteMark(const FileDescriptor& lockFile, LmdbMark mark)
{
    mark.process = getpid();
    mark.sum = SumOf(mark);
    // Without it the next writer has to verify the store.
    (void)!pwrite(lockFile.Get(), &mark, sizeof mark, kLmdbLocks);
}

FileDescriptor OpenLockFile(const std::string& address, const LmdbFolder& folder, const ActAsOwner& owner,
                            const struct stat& data, int& status, Error& error)
{
    status = 0;
    const auto path = folder.PathOf(kLockName);
    auto file = folder.OpenFile(kLockName, O_RDWR);
    for (int tries = 0; !file && errno == ENOENT && tries < 100; ++tries) {
        constexpr mode_t kOwnOnly = 0600;
        file = OpenAt(folder.Get(), kLockName, O_RDWR | O_CREAT | O_EXCL | O_NOFOLLOW, kOwnOnly);
        if (file) {
            // Who may write the data file may use this one. Where it cannot get the same group, it is its maker's.
            (void)!fchmod(file.Get(), owner.Give(file, data) == 0 ? WritersOf(data.st_mode) : kOwnOnly);
        } else if (errno == EEXIST) {
            file = folder.OpenFile(kLockName, O_RDWR); // another process was faster
        }
    }
    if (!file) {
        status = errno;
        if (status == ELOOP) {
            error = {ErrorKind::AccessDenied,
                     ErrorPrefix(address) + path + " is a symbolic link and is not followed; remove it"};
        } else if (status != EACCES && status != EPERM && status != EROFS) {
            error = status == ENXIO || status == EISDIR
                        ? Error{ErrorKind::BadArgument, ErrorPrefix(address) + path + " is not a regular file"}
                        : LmdbError(address, "open", path, status);
        }
        return file;
    }
    if (!folder.CheckFile(address, kLockName, file, error)) {
        return FileDescriptor();
    }
    struct stat own = {};
    if (fstat(file.Get(), &own) == 0 && (own.st_blocks * 512 < kLmdbLocks || own.st_size < kLockSize) &&
        fallocate(file.Get(), 0, 0, kLockSize) != 0 && (errno == ENOSPC || errno == EDQUOT || errno == EFBIG)) {
        error = LmdbError(address, "open", path, errno);
        return FileDescriptor();
    }
    if ((own.st_mode & 0777) != WritersOf(own.st_mode)) {
        (void)!fchmod(file.Get(), WritersOf(own.st_mode)); // as its owner
    }
    return file;
}

int OpenEnvironment(MDB_env* env, const std::string& path, unsigned flags)
{
    auto status = FillStandardDescriptors();
    if (status == 0) {
        status = mdb_env_open(env, path.c_str(), flags, 0600);
    }
    int file = -1;
    if (status == 0) {
        status = mdb_env_get_fd(env, &file);
    }
    // LMDB leaves its data file to the programs that this process starts.
    return status == 0 && fcntl(file, F_SETFD, FD_CLOEXEC) != 0 ? errno : status;
}

namespace {

// Makes the content of the last transaction that of the given one. An errno value, or 0.
int Renumber(const FileDescriptor& file, std::uint64_t transaction)
{
    std::array<lmdb::Meta, 2> metas{};
    if (!ReadMeta(file.Get(), 0, metas[0]) || !ReadMeta(file.Get(), metas[0].freeList.pad, metas[1])) {
        return EIO;
    }
    const std::size_t pageSize = metas[0].freeList.pad;
    auto meta = metas[metas[1].transaction > metas[0].transaction ? 1 : 0];
    for (const auto number : {transaction - 1, transaction}) {
        meta.transaction = number;
        const auto at = (number & 1) * pageSize + sizeof(lmdb::PageHeader);
        if (pwrite(file.Get(), &meta, sizeof meta, static_cast<off_t>(at)) != static_cast<ssize_t>(sizeof meta)) {
            return errno;
        }
    }
    return 0;
}

} // namespace

int WriteStore(const FileDescriptor& file, std::size_t mapSize, const FillStore& fill, std::uint64_t transaction)
{
    MDB_env* env = nullptr;
    auto status = mdb_env_create(&env);
    if (status != 0) {
        return status;
    }
    MDB_txn* txn = nullptr;
    MDB_dbi dbi = 0;
    (void)mdb_env_set_mapsize(env, mapSize);
    {
        const std::lock_guard lock(ForkSafeMutex(ForkSafe::WrittenStores));
        status = OpenEnvironment(env, file.Path(), MDB_NOSUBDIR | MDB_NOLOCK);
    }
    if (status == 0) {
        status = mdb_txn_begin(env, nullptr, 0, &txn);
    }
    if (status == 0) {
        status = mdb_dbi_open(txn, nullptr, 0, &dbi);
        if (status == 0) {
            status = LmdbEnvironment::PutState(txn, dbi, transaction == 0 ? mdb_txn_id(txn) : transaction);
        }
        if (status == 0 && fill) {
            status = fill(txn, dbi);
        }
        if (status == 0) {
            status = mdb_txn_commit(txn);
        } else {
            mdb_txn_abort(txn);
        }
    }
    mdb_env_close(env);
    if (status == 0 && transaction > 1) {
        status = Renumber(file, transaction);
    }
    return status == 0 && fsync(file.Get()) != 0 ? errno : status;
}

bool CreateStore(const std::string& address, const std::string& directory, bool& isMade, Error& error)
{
    isMade = false;
    LmdbFolder folder;
    if (!folder.Open(address, directory, true, error) || !folder.CheckMaking(address, error)) {
        return false;
    }
    const ActAsOwner owner(folder);
    if (!owner.Check(address, folder, error)) {
        return false;
    }
    std::string name;
    const auto file = folder.MakeFile(name);
    auto status = file ? WriteStore(file, kLeastMapSize, {}) : errno;
    if (status == 0) {
        status = folder.Place(file, name, false);
        isMade = status == 0;
        status = status == EEXIST ? 0 : status; // another process was faster
    }
    if (status == 0) {
        status = folder.Sync();
    }
    if (!name.empty()) {
        (void)unlinkat(folder.Get(), name.c_str(), 0);
    }
    if (status != 0 && isMade) {
        (void)unlinkat(folder.Get(), kDataName, 0);
    }
    if (status != 0) {
        error = LmdbError(address, "create a store in", directory, LmdbWriteStatus(directory, status));
    }
    return status == 0;
}

} // namespace wqspcfg
