#include "wqspcfg/models/pin/SpPINPADEXERegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/PIN.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using C = CSpPINPADEXERegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Device, L"Mac99", &C::m_dwMac99, 0,
     meaning::kMac99, Saved, Format(L"0x%02X")},
    {key::Device, L"ClearToBackspace", &C::m_bClearToBackspace, 0,
     meaning::kClearToBackspace, Saved},
    Group(Rows<kVersionedKeypadRows<C>>),
    {key::Device, L"IsFDKBelongEpp", &C::m_bIsFDKBelongEpp, 0,
     L"the FDKs at the front belong to the keypad: 0 no; nonzero yes", Saved},
    {key::Device, L"DelDuplicateKEK", &C::m_bDelDuplicateKEK, 0,
     meaning::kDelDuplicateKEK, Saved},
    {key::Device, L"DelDuplicateKEKSM", &C::m_bDelDuplicateKEKSM, 0,
     meaning::kDelDuplicateKEKSM, Saved},
    Group(Rows<kEllipseRows<C>>),
    {key::Device, L"StatEnInit", &C::m_bStatEnInit, 0,
     L"the status is enabled at initialisation: 0 no; nonzero yes", Saved},
    {key::Device, L"FirmwareVersionMode", &C::m_dwFirmwareVersionMode, 0,
     L"form in which the firmware version is told", Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpPINPADEXERegInfo, CPINRegInfo, kSettings)
