#include "wqspcfg/models/pin/SpPINJstdE6060RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/PIN.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using C = CSpPINJstdE6060RegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Device, L"MacType",                            &C::m_dwMacType,                           0,     meaning::kJstMacType, Saved, OneOf},
    {key::Device, L"UseClearBtnAsBackspaceBtnInGetData", &C::m_bUseClearBtnAsBackspaceBtnInGetData, 0,     meaning::kClearAsBackspaceInGetData, Saved, OneOf},
    {key::Device, L"UseClearBtnAsBackspaceBtnInGetPin",  &C::m_bUseClearBtnAsBackspaceBtnInGetPin,  0,     meaning::kClearAsBackspaceInGetPin, Saved, OneOf},
    {key::Device, L"PostWin32PCKeyEventInGetData",       &C::m_dwPostWin32PCKeyEventInGetData,      0,     meaning::kPostKeyInGetData, Saved, OneOf},
    {key::Device, L"PostWin32PCKeyEventInGetPin",        &C::m_dwPostWin32PCKeyEventInGetPin,       0,     meaning::kPostKeyInGetPin, Saved, OneOf},
    {key::Device, L"DisabledPCKeyEventOfKey",            &C::m_strDisabledPCKeyEventOfKey,          L"",   meaning::kDisabledPCKeyEventOfKey, Saved},
    {key::Comm,   L"Port",                               &C::m_dwPort,                              0,     meaning::kPort, Saved},
    {key::Comm,   L"BaudRate",                           &C::m_dwBaudRate,                          57600, meaning::kBaudRate, Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpPINJstdE6060RegInfo, CPINRegInfo, kSettings)
