#include "wqspcfg/platform/store/lmdb/LmdbFiles.h"

#include "wqspcfg/platform/store/lmdb/LmdbEnvironment.h"
#include "wqspcfg/platform/store/lmdb/LmdbFormat.h"

#include <array>
#include <cerrno>
#include <cstdint>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <sys/resource.h>
#include <sys/statvfs.h>
#include <system_error>

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

bool CheckFile(const std::string& address, const std::string& path, struct stat& status, Error& error)
{
    const FileDescriptor file(open(path.c_str(), O_RDONLY | O_CLOEXEC));
    if (file.Get() < 0 || fstat(file.Get(), &status) != 0) {
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

int SyncDirectory(const std::string& directory)
{
    const FileDescriptor file(open(directory.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    return file.Get() < 0 || fsync(file.Get()) != 0 ? errno : 0;
}

int ReserveLockFile(const std::string& directory)
{
    constexpr off_t kSize = 33 << 10; // for kMaxReaders
    const auto path = directory + "/lock.mdb";
    const bool isNew = access(path.c_str(), F_OK) != 0;
    const FileDescriptor file(open(path.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0664));
    struct stat status = {};
    struct stat data = {};
    if (file.Get() < 0 || fstat(file.Get(), &status) != 0) {
        return 0;
    }
    if (isNew && geteuid() == 0 && stat((directory + "/data.mdb").c_str(), &data) == 0 &&
        (fchown(file.Get(), data.st_uid, data.st_gid) != 0 || fchmod(file.Get(), data.st_mode & 0777) != 0)) {
        return errno;
    }
    if (status.st_blocks * 512 >= kSize) {
        return 0;
    }
    const auto result = fallocate(file.Get(), 0, 0, kSize) != 0 ? errno : 0;
    return result == ENOSPC || result == EDQUOT || result == EFBIG ? result : 0;
}

int WriteStore(const std::string& path, std::size_t mapSize, const FillStore& fill)
{
    MDB_env* env = nullptr;
    auto status = mdb_env_create(&env);
    if (status != 0) {
        return status;
    }
    MDB_txn* txn = nullptr;
    MDB_dbi dbi = 0;
    (void)mdb_env_set_mapsize(env, mapSize);
    status = mdb_env_open(env, path.c_str(), MDB_NOSUBDIR | MDB_NOLOCK, 0664);
    if (status == 0) {
        status = mdb_txn_begin(env, nullptr, 0, &txn);
    }
    if (status == 0) {
        status = mdb_dbi_open(txn, nullptr, 0, &dbi);
        if (status == 0) {
            status = LmdbEnvironment::PutState(txn, dbi);
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
    return status;
}

bool CreateStore(const std::string& address, const std::string& directory, Error& error)
{
    std::error_code failure;
    std::filesystem::create_directories(directory, failure);
    if (failure) {
        error = LmdbError(address, "create", directory, failure.value());
        return false;
    }
    std::string fresh = directory + "/.new-XXXXXX";
    if (mkdtemp(fresh.data()) == nullptr) {
        error = LmdbError(address, "create a store in", directory, errno);
        return false;
    }
    const auto target = directory + "/data.mdb";
    const auto source = fresh + "/data.mdb";
    auto status = WriteStore(source, kLeastMapSize, {});
    struct stat owner = {};
    if (status == 0 && geteuid() == 0 && stat(directory.c_str(), &owner) == 0 &&
        chown(source.c_str(), owner.st_uid, owner.st_gid) != 0) {
        status = errno;
    }
    if (status == 0 && link(source.c_str(), target.c_str()) != 0 && errno != EEXIST) {
        // Some file systems have no hard links.
        status = rename(source.c_str(), target.c_str()) != 0 ? errno : 0;
    }
    std::filesystem::remove_all(fresh, failure);
    if (status == 0) {
        status = SyncDirectory(directory);
    }
    if (status != 0) {
        error = LmdbError(address, "create a store in", directory, LmdbWriteStatus(directory, status));
    }
    return status == 0;
}

} // namespace wqspcfg
