// Where the files of a registry are on a disk.
#pragma once

#include "wqspcfg/tools/hive/HiveStore.h"

namespace wqspcfg {

// Opens what HiveStore::Open is given. Below a directory, names are found in any case, and links are not followed: on
// this machine, a link of another one leads astray. False with `error` filled when neither hive is there, or one cannot
// be read.
bool OpenHives(const std::string& path, HiveSet& hives, std::vector<std::string>& notes, Error& error);

} // namespace wqspcfg
