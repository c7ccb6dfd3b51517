// Rules that devices which retain cards have in common.
#pragma once

#include "wqspcfg/core/settings/Setting.h"

namespace wqspcfg {

namespace meaning {

inline constexpr wchar_t kMaxRetainCard[] = L"capacity of the retain bin, in cards";
inline constexpr wchar_t kRetainBinHighOfMaxRetainCard[] =
    L"retain count at which the retain bin is nearly full; missing, 0 or not below MaxRetainCard: three quarters of "
    L"MaxRetainCard";
inline constexpr wchar_t kCountOfRetained[] = L"retain count, read back when the device restarts";

} // namespace meaning

inline constexpr Key kRetainCardSet = key::Below(L"RetainCardSet");

// A count at which the retain bin is nearly full that is missing, 0 or not below the bin's capacity becomes three
// quarters of the capacity.
template <class C>
inline constexpr auto kBelowCapacity = Normalize([](C& c, DWORD dwHigh, bool bFound) -> DWORD {
    return bFound && dwHigh != 0 && dwHigh < c.m_dwMaxRetainCard ? dwHigh : c.m_dwMaxRetainCard * 3 / 4;
});

// Milliseconds between polls while a card waits to be taken: 0 counts as missing.
template <class C>
inline constexpr auto kPollingInterval = Normalize([](C&, DWORD dwInterval, bool) -> DWORD {
    return dwInterval != 0 ? dwInterval : 500;
});

} // namespace wqspcfg
