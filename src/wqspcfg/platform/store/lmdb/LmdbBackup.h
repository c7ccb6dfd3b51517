// Backups and the upkeep of an embedded store; platform/store/Backup.h and Maintenance.h describe them.
#pragma once

#include "wqspcfg/platform/store/Maintenance.h"

namespace wqspcfg {

bool BackUpLmdb(const std::string& address, const std::string& directory, const std::string& file, BackupCounts& counts,
                Error& error);
bool RestoreLmdb(const std::string& address, const std::string& directory, const std::string& path,
                 BackupCounts& counts, std::string& kept, Error& error);
bool CompactLmdb(const std::string& address, const std::string& directory, CompactCounts& counts, Error& error);
bool GetLmdbStatus(const std::string& address, const std::string& directory, bool verify, StoreStatus& status,
                   Error& error);

} // namespace wqspcfg
