// Copies of a whole store in one file.
//
// A backup is the data file of an embedded store, compact and complete: a directory that holds it as data.mdb is a
// store. Other kinds of stores are refused; they are copied with registry exports (platform/store/RegFile.h).
#pragma once

#include "wqspcfg/platform/base/Error.h"
#include "wqspcfg/platform/base/Export.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace wqspcfg {

struct BackupCounts
{
    std::size_t keys = 0;
    std::size_t values = 0;
};

// Writes one consistent state of the store at `address` to the file `path`, while other processes go on with the store.
// Every record is checked on its way. What `path` held before is replaced, durably, once the copy is complete; after a
// failure, with `error` naming path and cause, it is as it was.
WQSPCFG_API bool BackUpStore(std::string_view address, const std::string& path, BackupCounts& counts, Error& error);

// Makes the content of the store at `address` that of the backup at `path`, all at once and durably. The whole backup
// is checked first; after any failure the store is as it was.
//
// A sound store is replaced within one transaction: processes that have it open read the old state to the end of what
// they are doing, and the new one after that. A store that is damaged or missing is replaced by another file, which is
// refused while a process has it open. `kept` is then the path under which the damaged file is left, else empty.
WQSPCFG_API bool RestoreStore(std::string_view address, const std::string& path, BackupCounts& counts,
                              std::string& kept, Error& error);

} // namespace wqspcfg
