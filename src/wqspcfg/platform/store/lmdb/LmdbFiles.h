// The files of an embedded store: what can be said and done about them without opening the store.
#pragma once

#include "wqspcfg/platform/base/Error.h"
#include "wqspcfg/platform/store/PosixFile.h"

#include <lmdb.h>

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>

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

// What LMDB takes on trust: that the file is as long as it says and that both of its heads are sound.
bool CheckFile(const std::string& address, const std::string& path, struct stat& status, Error& error);

// Makes the names in a directory durable. An errno value, or 0.
int SyncDirectory(const std::string& directory);

// LMDB writes to its lock file through memory: on a full file system that would end the process where the file has no
// blocks yet. Only while this process has no environment on it, whose locks closing the file would drop. A lock file
// that the superuser makes gets the owner and the rights of the data file, or the store's owner could no longer write.
int ReserveLockFile(const std::string& directory);

// Puts records in the order of their names.
using FillStore = std::function<int(MDB_txn* txn, MDB_dbi dbi)>;
// Writes a store with one transaction into the file at `path`, which is empty or missing and in no one else's use. The
// map has room for `mapSize` bytes. An LMDB or errno value, or 0.
int WriteStore(const std::string& path, std::size_t mapSize, const FillStore& fill);

// Makes an empty store where there is none. The file appears whole or not at all, and only one of several processes
// that do this at once brings it. What the superuser makes belongs to the directory's owner.
bool CreateStore(const std::string& address, const std::string& directory, Error& error);

} // namespace wqspcfg
