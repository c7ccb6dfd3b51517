#include "wqspcfg/models/pin/SpPINYMSE01RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/PIN.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using C = CSpPINYMSE01RegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Device, L"Mac99", &C::m_dwMac99, 0,
     meaning::kMac99, Saved, Format(L"0x%02X")},
    Group(Rows<kVersionedKeypadRows<C>>),
    {key::Device, L"DelDuplicateKEK", &C::m_bDelDuplicateKEK, 0,
     meaning::kDelDuplicateKEK, Saved},
    {key::Device, L"DelDuplicateKEKSM", &C::m_bDelDuplicateKEKSM, 0,
     meaning::kDelDuplicateKEKSM, Saved},
    {key::Device, L"ClearToBackspace", &C::m_bClearToBackspace, 0,
     meaning::kClearToBackspace, Saved},
    {key::Device, L"PostWin32PCKeyEventInGetData", &C::m_dwPostWin32PCKeyEventInGetData, 0,
     meaning::kPostKeyInGetData, Saved, OneOf},
    {key::Device, L"PostWin32PCKeyEventInGetPin", &C::m_dwPostWin32PCKeyEventInGetPin, 0,
     meaning::kPostKeyInGetPin, Saved, OneOf},
    {key::Device, L"DisabledPCKeyEventOfKey", &C::m_strDisabledPCKeyEventOfKey, L"",
     meaning::kDisabledPCKeyEventOfKey, Saved},
    Group(Rows<kEllipseRows<C>>),
    {key::Device, L"AtiveClearAndBaskSpaceOption", &C::m_dwAtiveClearAndBaskSpaceOption, 0,
     meaning::kClearAndBackspace, Saved, OneOf},
    {key::Device, L"DefaultMaxPinLength", &C::m_dwDefaultMaxPinLength, 12,
     L"longest PIN where the application sets none, in digits", Saved},
    {key::Device, L"DerivationAlgorithms", &C::m_dwDerivationAlgorithms, 0,
     meaning::kDerivationAlgorithms, Saved},
    {key::Device, L"PresentationAlgorithms", &C::m_dwPresentationAlgorithms, 0,
     meaning::kPresentationAlgorithms, Saved},
    {key::Device, L"IDKey", &C::m_dwIDKey, 0, meaning::kIDKey, Saved},
    {key::Device, L"EnableIdlePCKeyEvent", &C::m_bEnableIdlePCKeyEvent, 0,
     meaning::kEnableIdlePCKeyEvent, Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpPINYMSE01RegInfo, CPINRegInfo, kSettings)
