// XFS result codes, as this system returns them.
#pragma once

#include "wqspcfg/platform/base/WinTypes.h"

// A service provider may have included its own XFS headers before this one.
#ifndef WFS_SUCCESS
inline constexpr LONG WFS_SUCCESS = 0;
#endif
#ifndef WFS_ERR_INTERNAL_ERROR
inline constexpr LONG WFS_ERR_INTERNAL_ERROR = -15;
#endif
#ifndef WFS_ERR_UNSUPP_DATA
inline constexpr LONG WFS_ERR_UNSUPP_DATA = -56;
#endif
