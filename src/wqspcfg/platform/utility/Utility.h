#pragma once

#include "wqspcfg/platform/base/Export.h"
#include "wqspcfg/platform/base/WinTypes.h"
#include "wqspcfg/platform/framework/String.h"

class CUtility
{
  public:
    // The directory of a module, with backslashes on every platform, and with one at its end where asked for. A null
    // module is the one this library is part of: itself where it is shared, else the program. Elsewhere than on
    // Windows a module is any address within it. The last argument has no effect. Empty when the module is unknown.
    WQSPCFG_API static CString GetModuleDir(int trailingBackslash, HINSTANCE module, bool ownModule);
};

namespace wqspcfg {

// The module this library is part of.
WQSPCFG_API HINSTANCE ThisModule() noexcept;

// Lets GetModuleDir answer with `directory` for every module, for a tool that looks at another terminal's settings and
// for tests. Empty ends that. May be called by any thread.
WQSPCFG_API void OverrideModuleDir(const CString& directory);

} // namespace wqspcfg
