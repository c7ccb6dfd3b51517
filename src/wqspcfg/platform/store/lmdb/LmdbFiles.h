// The files of an embedded store: what can be said and done about them without opening the store.
#pragma once

#include "wqspcfg/platform/base/Error.h"
#include "wqspcfg/platform/store/PosixFile.h"
#include "wqspcfg/platform/store/lmdb/LmdbFolder.h"

#include <lmdb.h>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <sys/stat.h>

namespace wqspcfg {

constexpr std::size_t kLeastMapSize = std::size_t{1} << 20;
constexpr unsigned kMaxReaders = 512;
// The name of the record that holds the format and the transaction's number; the first of all.
constexpr std::string_view kStateName{"\0state", 6};

// What a message begins with; nothing without an address.
std::string ErrorPrefix(const std::string& address);
// An LMDB or system error in words.
std::string LmdbWords(int status);
Error LmdbError(const std::string& address, std::string_view action, const std::string& path, int status);
// What a write to `path` really failed for: LMDB gives one that came back short, mostly since the file system was full,
// as an input/output error.
int LmdbWriteStatus(const std::string& path, int status);
Error DamagedFile(const std::string& address, const std::string& path, std::string_view cause);

// What LMDB takes on trust: that the file is as long as it says and that both of its heads are sound. `path` names it.
bool CheckFile(const std::string& address, const std::string& path, const FileDescriptor& file, struct stat& status,
               Error& error);

// The number of the last transaction, by the heads of a file that CheckFile found sound; 0 when they cannot be read.
std::uint64_t LastTransaction(const FileDescriptor& file);

// What stands behind LMDB's part of the lock file: who wrote last, and what the data file was like after it. As long as
// it is like that, nobody else has written to it, and it need not be verified before the next write.
struct LmdbMark
{
    std::uint64_t sum = 0; // of the rest
    std::uint64_t transaction = 0;
    std::uint64_t inode = 0;
    std::uint64_t size = 0;
    std::int64_t changed = 0; // nanoseconds
    std::int64_t modified = 0;
    std::int64_t process = 0;

    // Whether both tell of one state of one file.
    bool IsOf(const LmdbMark& other) const noexcept
    {
        return transaction == other.transaction && inode == other.inode && size == other.size &&
               changed == other.changed && modified == other.modified;
    }
};
static_assert(sizeof(LmdbMark) == 56);

LmdbMark MarkOf(const struct stat& data, std::uint64_t transaction);
// False when there is none.
bool ReadMark(const FileDescriptor& lockFile, LmdbMark& mark);
void WriteMark(const FileDescriptor& lockFile, LmdbMark mark);

// Opens the lock file for reading and writing, and makes it where it is missing, for those who can write the data file.
// All its blocks are reserved: LMDB writes to it through memory, and on a full file system that would end the process.
// Only while this process has no environment on it, whose locks closing the file would drop. Without the right to it
// the result is empty and `status` EACCES, EPERM or EROFS; after another failure, `error` is set.
FileDescriptor OpenLockFile(const std::string& address, const LmdbFolder& folder, const ActAsOwner& owner,
                            const struct stat& data, int& status, Error& error);

// Opens LMDB's environment so that no program that this process starts inherits its files. No other thread forks
// meanwhile: one of the locks of ForkSafe.h is held. An LMDB or errno value, or 0.
int OpenEnvironment(MDB_env* env, const std::string& path, unsigned flags);

// Puts records in the order of their names.
using FillStore = std::function<int(MDB_txn* txn, MDB_dbi dbi)>;
// Writes a store with one transaction into the empty file, which is in no one else's use. The map has room for
// `mapSize` bytes. With a number, the content is that of this transaction, and the next one follows on it. An LMDB or
// errno value, or 0.
int WriteStore(const FileDescriptor& file, std::size_t mapSize, const FillStore& fill, std::uint64_t transaction = 0);

// Makes an empty store where there is none. The file appears whole or not at all, and only one of several processes
// that do this at once brings it; `isMade` tells that one. After a failure nothing is left.
bool CreateStore(const std::string& address, const std::string& directory, bool& isMade, Error& error);

} // namespace wqspcfg
