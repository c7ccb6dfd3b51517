// What the Jstd keypads have in common.
#pragma once

#include "wqspcfg/core/settings/Setting.h"
#include "wqspcfg/parts/meanings/PIN.h"

namespace wqspcfg {

struct JstdKeypad
{
    DWORD m_dwMacType{};
    bool m_bUseClearBtnAsBackspaceBtnInGetData{};
    bool m_bUseClearBtnAsBackspaceBtnInGetPin{};
    DWORD m_dwPostWin32PCKeyEventInGetData{};
    DWORD m_dwPostWin32PCKeyEventInGetPin{};
    CString m_strDisabledPCKeyEventOfKey;
};

// clang-format off
template <class C>
inline constexpr Setting kJstdKeypadRows[] = {
    {key::Device, L"MacType", Of<C, &JstdKeypad::m_dwMacType>, 0, meaning::kJstMacType, Saved, OneOf},
    {key::Device, L"UseClearBtnAsBackspaceBtnInGetData", Of<C, &JstdKeypad::m_bUseClearBtnAsBackspaceBtnInGetData>, 0,
     meaning::kClearAsBackspaceInGetData, Saved, OneOf},
    {key::Device, L"UseClearBtnAsBackspaceBtnInGetPin", Of<C, &JstdKeypad::m_bUseClearBtnAsBackspaceBtnInGetPin>, 0,
     meaning::kClearAsBackspaceInGetPin, Saved, OneOf},
    {key::Device, L"PostWin32PCKeyEventInGetData", Of<C, &JstdKeypad::m_dwPostWin32PCKeyEventInGetData>, 0,
     meaning::kPostKeyInGetData, Saved, OneOf},
    {key::Device, L"PostWin32PCKeyEventInGetPin", Of<C, &JstdKeypad::m_dwPostWin32PCKeyEventInGetPin>, 0,
     meaning::kPostKeyInGetPin, Saved, OneOf},
    {key::Device, L"DisabledPCKeyEventOfKey", Of<C, &JstdKeypad::m_strDisabledPCKeyEventOfKey>, L"",
     meaning::kDisabledPCKeyEventOfKey, Saved},
};
// clang-format on

} // namespace wqspcfg
