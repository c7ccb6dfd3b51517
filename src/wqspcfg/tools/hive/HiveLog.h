// The transaction log beside a registry hive, in which Windows writes changes before it writes them to the hive.
#pragma once

#include "wqspcfg/platform/store/PosixFile.h"

#include <cstdint>

namespace wqspcfg {

// Whether the log holds changes that are newer than a hive of that sequence number. A file that is no log holds none.
bool HasNewerChanges(const FileDescriptor& log, std::uint32_t sequence);

} // namespace wqspcfg
