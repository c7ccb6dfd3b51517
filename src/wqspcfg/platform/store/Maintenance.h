// What keeps an embedded store small and tells how it is. Other kinds of stores are refused.
#pragma once

#include "wqspcfg/platform/base/Error.h"
#include "wqspcfg/platform/base/Export.h"
#include "wqspcfg/platform/store/Backup.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace wqspcfg {

struct CompactCounts : BackupCounts
{
    std::uint64_t before = 0; // length of the file, in bytes
    std::uint64_t after = 0;
};

// Gives the space that a store no longer needs back to the file system: its last state is written to a new file, every
// record checked on its way, which takes the old one's place at once and durably. Other processes may go on with the
// store: writers wait, as for another write; readers end what they have begun on the old file. After a failure, with
// `error` naming path and cause, the store is as it was.
WQSPCFG_API bool CompactStore(std::string_view address, CompactCounts& counts, Error& error);

// Takes an embedded store back that was made a moment ago and was never written. False when it stays, since somebody
// uses it or has written to it.
WQSPCFG_API bool RemoveNewStore(std::string_view address);

struct StoreReader
{
    long process = 0;
    std::string program;       // its name; empty where the system does not tell
    std::int64_t seconds = -1; // since the process began; -1 where the system does not tell
    std::uint64_t behind = 0;  // commits since the state that it holds; no page of that is used again
};

struct StoreStatus
{
    std::string path;            // of the data file
    std::uint64_t fileSize = 0;  // bytes
    std::uint64_t usedSize = 0;  // of them, those that hold the last state and its structure
    std::uint64_t freeSize = 0;  // of them, those that later writes use again
    std::uint64_t commits = 0;   // number of the last one
    std::int64_t lastCommit = 0; // when the file was last written, in seconds since 1970
    long lastWriter = 0;         // process numbers; 0 where it is not known, or nobody is
    long writer = 0;             // that is writing now
    bool knowsUsers = true;      // false where the lock file is not used, for want of rights or of trust in who may
                                 // write the store: readers and writers are not known then
    std::vector<StoreReader> readers; // that hold a state now
    // With `verify`:
    bool isSound = false;
    std::string damage; // what is not
    BackupCounts counts;
};

// Tells how the store at `address` is. With `verify`, every page and record is read and checked; damage is no failure
// of this function then, but told in `status`.
WQSPCFG_API bool GetStoreStatus(std::string_view address, bool verify, StoreStatus& status, Error& error);

} // namespace wqspcfg
