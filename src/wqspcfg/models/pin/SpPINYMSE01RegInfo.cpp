#include "wqspcfg/models/pin/SpPINYMSE01RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/PIN.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using C = CSpPINYMSE01RegInfo;

namespace {

constexpr Key kSM2Paramete = key::Below(L"SM\\SM2Paramete");

// clang-format off
constexpr Setting kSettings[] = {
    {key::Device,  L"Mac99",                        &C::m_dwMac99,                        0,   meaning::kMac99, Saved, Format(L"0x%02X")},
    {key::Comm,    L"Port",                         &C::m_dwPort,                         1,   meaning::kPort, Saved},
    {key::Device,  L"Hardware",                     &C::m_dwHardware,                     0,   meaning::kHardware, Saved},
    {key::Device,  L"EnableBackSpace",              &C::m_bEnableBackSpace,               0,   meaning::kEnableBackSpace, Saved},
    {key::Device,  L"BackspaceToHelp",              &C::m_bBackspaceToHelp,               0,   meaning::kBackspaceToHelp, Saved, OneOf},
    {key::Device,  L"UseDesignatedName",            &C::m_dwUseDesignatedName,            0,   meaning::kUseDesignatedName, Saved, OneOf},
    {key::Device,  L"ReportErrOnPressMultiKey",     &C::m_dwReportErrOnPressMultiKey,     0,   meaning::kReportErrOnPressMultiKey, Saved, OneOf},
    {key::Device,  L"MaxEnDeCryptBlockLen",         &C::m_dwMaxEnDeCryptBlockLen,         0,   meaning::kMaxEnDeCryptBlockLen, Saved},
    {key::Device,  L"KeyPressInteval",              &C::m_dwKeyPressInteval,              3,   meaning::kKeyPressInteval, Saved},
    {key::Device,  L"ReportLongKeyPressErr",        &C::m_dwReportLongKeyPressErr,        0,   meaning::kReportLongKeyPressErr, Saved},
    {key::Device,  L"FindRegKeyIndexByUse",         &C::m_dwFindRegKeyIndexByUse,         0,   meaning::kFindRegKeyIndexByUse, Saved},
    {key::Device,  L"MinPinLength",                 &C::m_dwMinPinLength,                 4,   meaning::kMinPinLength, Saved},
    {key::Device,  L"DelDuplicateKEK",              &C::m_bDelDuplicateKEK,               0,   meaning::kDelDuplicateKEK, Saved},
    {key::Device,  L"DelDuplicateKEKSM",            &C::m_bDelDuplicateKEKSM,             0,   meaning::kDelDuplicateKEKSM, Saved},
    {key::Device,  L"ClearToBackspace",             &C::m_bClearToBackspace,              0,   meaning::kClearToBackspace, Saved},
    {key::Device,  L"PostWin32PCKeyEventInGetData", &C::m_dwPostWin32PCKeyEventInGetData, 0,   meaning::kPostKeyInGetData, Saved, OneOf},
    {key::Device,  L"PostWin32PCKeyEventInGetPin",  &C::m_dwPostWin32PCKeyEventInGetPin,  0,   meaning::kPostKeyInGetPin, Saved, OneOf},
    {key::Device,  L"DisabledPCKeyEventOfKey",      &C::m_strDisabledPCKeyEventOfKey,     L"", meaning::kDisabledPCKeyEventOfKey, Saved},
    {kSM2Paramete, L"EllipseParamP",                &C::m_strEllipseParamP,               L"", meaning::kEllipseParamP, Saved},
    {kSM2Paramete, L"EllipseParamA",                &C::m_strEllipseParamA,               L"", meaning::kEllipseParamA, Saved},
    {kSM2Paramete, L"EllipseParamB",                &C::m_strEllipseParamB,               L"", meaning::kEllipseParamB, Saved},
    {kSM2Paramete, L"EllipseParamN",                &C::m_strEllipseParamN,               L"", meaning::kEllipseParamN, Saved},
    {kSM2Paramete, L"EllipseParamXg",               &C::m_strEllipseParamXg,              L"", meaning::kEllipseParamXg, Saved},
    {kSM2Paramete, L"EllipseParamYg",               &C::m_strEllipseParamYg,              L"", meaning::kEllipseParamYg, Saved},
    {key::Device,  L"AtiveClearAndBaskSpaceOption", &C::m_dwAtiveClearAndBaskSpaceOption, 0,   meaning::kClearAndBackspace, Saved, OneOf},
    {key::Device,  L"DefaultMaxPinLength",          &C::m_dwDefaultMaxPinLength,          12,  L"longest PIN where the application sets none, in digits", Saved},
    {key::Device,  L"DerivationAlgorithms",         &C::m_dwDerivationAlgorithms,         0,   meaning::kDerivationAlgorithms, Saved},
    {key::Device,  L"PresentationAlgorithms",       &C::m_dwPresentationAlgorithms,       0,   meaning::kPresentationAlgorithms, Saved},
    {key::Device,  L"IDKey",                        &C::m_dwIDKey,                        0,   meaning::kIDKey, Saved},
    {key::Device,  L"EnableIdlePCKeyEvent",         &C::m_bEnableIdlePCKeyEvent,          0,   meaning::kEnableIdlePCKeyEvent, Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpPINYMSE01RegInfo, CPINRegInfo, kSettings)
