// The part of CUtility that each platform does its own way.
#pragma once

#include "wqspcfg/platform/base/WinTypes.h"

#include <string>

namespace wqspcfg {

// The file a module was loaded from, with the platform's own separators; empty when that is unknown. A null module is
// the one this library is part of.
std::wstring ModulePath(HINSTANCE module);

} // namespace wqspcfg
