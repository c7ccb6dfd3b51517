// How the note recyclers read the indices of the VTM shutter valve, on the sensors-and-indicators device.
#pragma once

#include "wqspcfg/core/settings/Setting.h"

namespace wqspcfg::vtm {

template <class C>
inline constexpr auto kControlIndex = Normalize([](C&, DWORD dwIndex, bool) -> DWORD {
    return dwIndex >= 16 ? 10 : dwIndex;
});

// An index out of range changes the control index instead; installed terminals rely on it.
template <class C>
inline constexpr auto kSafeDoorIndex = Normalize([](C& c, DWORD dwIndex, bool) -> DWORD {
    if (dwIndex >= 8) {
        c.m_dwVtmOutShtCtrlIndex = 5;
    }
    return dwIndex;
});

template <class C>
inline constexpr auto kStatusIndex = Normalize([](C&, DWORD dwIndex, bool) -> DWORD {
    return dwIndex >= 8 ? 4 : dwIndex;
});

} // namespace wqspcfg::vtm
