#include "wqspcfg/models/pin/SpPINJstdE6020K02EASRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/PIN.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using C = CSpPINJstdE6020K02EASRegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Device, L"MacType",                            &C::m_dwMacType,                           0,          meaning::kJstMacType, Saved, OneOf},
    {key::Device, L"UseClearBtnAsBackspaceBtnInGetData", &C::m_bUseClearBtnAsBackspaceBtnInGetData, 0,          meaning::kClearAsBackspaceInGetData, Saved, OneOf},
    {key::Device, L"UseClearBtnAsBackspaceBtnInGetPin",  &C::m_bUseClearBtnAsBackspaceBtnInGetPin,  0,          meaning::kClearAsBackspaceInGetPin, Saved, OneOf},
    {key::Device, L"PostWin32PCKeyEventInGetData",       &C::m_dwPostWin32PCKeyEventInGetData,      0,          meaning::kPostKeyInGetData, Saved, OneOf},
    {key::Device, L"PostWin32PCKeyEventInGetPin",        &C::m_dwPostWin32PCKeyEventInGetPin,       0,          meaning::kPostKeyInGetPin, Saved, OneOf},
    {key::Device, L"DisabledPCKeyEventOfKey",            &C::m_strDisabledPCKeyEventOfKey,          L"",        meaning::kDisabledPCKeyEventOfKey, Saved},
    {key::Device, L"AtiveStillDown",                     &C::m_bAtiveStillDown,                     0,          L"a key that is held down is reported as an error: 0 no; 1 yes", Saved, OneOf},
    {key::Comm,   L"Port",                               &C::m_dwPort,                              1,          meaning::kPort, Saved},
    {key::Comm,   L"BaudRate",                           &C::m_dwBaudRate,                          9600,       meaning::kBaudRate, Saved},
    {key::Device, L"AtiveClearAndBaskSpaceOption",       &C::m_dwAtiveClearAndBaskSpaceOption,      0,          meaning::kClearAndBackspace, Saved, OneOf},
    {key::Device, L"PageUpAsXFSFK",                      &C::m_dwPageUpAsXFSFK,                     0x00010000, L"XFS key that the page-up key stands for, by default WFS_PIN_FK_00", Saved, Format(L"0x%x")},
    {key::Device, L"PageDownAsXFSFK",                    &C::m_dwPageDownAsXFSFK,                   0x00004000, L"XFS key that the page-down key stands for, by default WFS_PIN_FK_HELP", Saved, Format(L"0x%x")},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpPINJstdE6020K02EASRegInfo, CPINRegInfo, kSettings)
