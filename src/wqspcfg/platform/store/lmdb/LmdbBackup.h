// Backups of an embedded store; platform/store/Backup.h describes them.
#pragma once

#include "wqspcfg/platform/store/Backup.h"

namespace wqspcfg {

bool BackUpLmdb(const std::string& address, const std::string& directory, const std::string& file, BackupCounts& counts,
                Error& error);
bool RestoreLmdb(const std::string& address, const std::string& directory, const std::string& path,
                 BackupCounts& counts, std::string& kept, Error& error);

} // namespace wqspcfg
