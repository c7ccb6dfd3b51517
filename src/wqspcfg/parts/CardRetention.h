// Rules that devices which retain cards have in common.
#pragma once

#include "wqspcfg/core/RegInfo.h"

namespace wqspcfg {

namespace meaning {

inline constexpr wchar_t kRetainBinHighOfMaxRetainCard[] =
    L"retain count at which the retain bin is nearly full; missing, 0 or not below MaxRetainCard: three quarters of "
    L"MaxRetainCard";

} // namespace meaning

// The retain count at which a bin is nearly full: what is configured, or three quarters of the bin's capacity where
// that is missing, 0 or not below the capacity.
constexpr DWORD RetainBinHigh(DWORD dwHigh, bool bFound, DWORD dwMaxRetainCard) noexcept
{
    return bFound && dwHigh != 0 && dwHigh < dwMaxRetainCard ? dwHigh : dwMaxRetainCard * 3 / 4;
}

// Milliseconds between polls while a card waits to be taken.
inline DWORD WaitCardTaken(const CRegInfo& config)
{
    const DWORD dwInterval = config.GetIdleTimeInterval(L"WaitCardTaken");
    return dwInterval != 0 ? dwInterval : 500;
}

} // namespace wqspcfg
