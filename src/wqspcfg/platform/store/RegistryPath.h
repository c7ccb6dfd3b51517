// Paths as sessions take them: relative to the hive that their first component names.
#pragma once

#include "wqspcfg/platform/store/Store.h"

#include <string_view>

namespace wqspcfg {

// HKEY_USERS for what begins with ".DEFAULT", HKEY_LOCAL_MACHINE for all else.
Hive HiveOf(std::wstring_view path);

} // namespace wqspcfg
