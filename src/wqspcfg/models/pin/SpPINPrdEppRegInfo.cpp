#include "wqspcfg/models/pin/SpPINPrdEppRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/PIN.h"

#include <algorithm>

using namespace wqspcfg;
using C = CSpPINPrdEppRegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Device, L"DN.PIN_EPP", &C::m_strDN_PIN_EPP, L"",
     L"unique identifier of the manufacturer's driver", Saved},
    {key::Device, L"PostWin32PCKeyEventInGetData", &C::m_dwPostWin32PCKeyEventInGetData, 0,
     meaning::kPostKeyInGetData, Saved, OneOf},
    {key::Device, L"PostWin32PCKeyEventInGetPin", &C::m_dwPostWin32PCKeyEventInGetPin, 0,
     meaning::kPostKeyInGetPin, Saved, OneOf},
    {key::Device, L"DisabledPCKeyEventOfKey", &C::m_strDisabledPCKeyEventOfKey, L"",
     meaning::kDisabledPCKeyEventOfKey, Saved},
    {key::Device, L"EnableIdlePCKeyEvent", &C::m_bEnableIdlePCKeyEvent, 0,
     meaning::kEnableIdlePCKeyEvent, Saved},
    {key::Device, L"KeyPressInteval", &C::m_dwKeyPressInteval, 3,
     L"how long a key is held down before it counts as a long press, in seconds, 3 to 28: less becomes 3, more 28",
     Saved, Range(3, 28), Normalize([](C&, DWORD dwSeconds, bool) { return std::clamp<DWORD>(dwSeconds, 3, 28); })},
    {key::Device, L"AtiveClearAndBaskSpaceOption", &C::m_dwAtiveClearAndBaskSpaceOption, 0,
     meaning::kClearAndBackspace, Saved, OneOf},
    {key::Device, L"PageUpToXFSKey", &C::m_dwPageUpToXFSKey, 0,
     meaning::kPageUpToXFSKey, Saved},
    {key::Device, L"PageDownToXFSKey", &C::m_dwPageDownToXFSKey, 0,
     meaning::kPageDownToXFSKey, Saved},
    {key::Device, L"SPaceToXFSKey", &C::m_dwSPaceToXFSKey, 0,
     L"XFS key that the space key is mapped to: 0 none", Saved},
    {key::Device, L"ReadOneKeyToMaxForceEnter", &C::m_bReadOneKeyToMaxForceEnter, 0,
     meaning::kReadOneKeyToMaxForceEnter, Saved},
    {key::Device, L"ReportErrOnPressMultiKey", &C::m_dwReportErrOnPressMultiKey, 0,
     L"several keys pressed at once: 0 no error; 1 user error; 2 device error", Saved, OneOf},
    {key::Device, L"ReportLongKeyPressErr", &C::m_dwReportLongKeyPressErr, 0,
     L"a long key press: 0 no error; 1 user error; 2 device error", Saved, OneOf},
    {key::Device, L"MacType", &C::m_dwMacType, 0x11,
     L"MAC algorithm: 0x01 decided by the parameters of the application (DESMAC X9.9, TRIDESMAC X9.19, MAAMAC MAA); "
     L"0x10 X9.9; 0x11 X9.19; 0x12 MAA", Saved, OneOf},
    Group(Rows<kEllipseRows<C>>),
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpPINPrdEppRegInfo, CPINRegInfo, kSettings)
