#include "wqspcfg/models/ptr/SpPTRMSFPT201RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/PTR.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using C = CSpPTRMSFPT201RegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Comm,    L"Port",                   &C::m_dwPort,                  1,         meaning::kPort, Saved},
    {key::Comm,    L"BaudRate",               &C::m_dwBaudRate,              9600,      meaning::kBaudRate, Saved},
    {key::Control, L"MachineType",            &C::m_dwMachineType,           0,         L"machine type; 0 the standard one", Saved},
    {key::Control, L"PolicyOfPaperState",     &C::m_dwPolicyOfPaperState,    0,         L"policy for the paper status; 0 the device's standard", Saved},
    {key::Control, L"OffsetValid",            &C::m_bOffsetValid,            0,         meaning::printer::kOffsetValid, Saved},
    {key::Control, L"LineSpace",              &C::m_dwLineSpace,             30,        meaning::printer::kLineSpace, Saved},
    {key::Control, L"WordSpace",              &C::m_dwWordSpace,             0,         meaning::printer::kWordSpace, Saved},
    {key::Control, L"LeftSpace",              &C::m_dwLeftSpace,             0,         meaning::printer::kLeftSpace, Saved},
    {key::Control, L"MustBeBold",             &C::m_bMustBeBold,             0,         meaning::printer::kMustBeBold, Saved},
    {key::Control, L"FontSize",               &C::m_dwFontSize,              12,        meaning::printer::kFontSize, Saved},
    {key::Control, L"UseCPI",                 &C::m_bUseCPI,                 0,         meaning::printer::kUseCPI, Saved},
    {key::Control, L"FontName",               &C::m_strFontName,             L"SimSun", meaning::printer::kFontName, Saved},
    {key::Control, L"RawDataAsBmp",           &C::m_bRawDataAsBmp,           0,         meaning::printer::kRawDataAsBmp, Saved},
    {key::Control, L"RawDataWordWrap",        &C::m_bRawDataWordWrap,        1,         meaning::printer::kRawDataWordWrap, Saved},
    {key::Control, L"RawDataFontSize",        &C::m_dwRawDataFontSize,       12,        meaning::printer::kRawDataFontSize, Saved},
    {key::Control, L"RawDataFontName",        &C::m_strRawDataFontName,      L"SimSun", meaning::printer::kRawDataFontName, Saved},
    {key::Control, L"ImageStretch",           &C::m_bImageStretch,           0,         meaning::printer::kUseImageStretch, Saved},
    {key::Control, L"MaxBlackValue",          &C::m_dwMaxBlackValue,         128,       meaning::printer::kBlackColorRangeMax, Saved, Range(0, 255)},
    {key::Control, L"FeedBeforePrint",        &C::m_dwFeedBeforePrint,       0,         meaning::printer::kFeedBeforePrint, Saved},
    {key::Control, L"FeedAfterPrint",         &C::m_dwFeedAfterPrint,        0,         meaning::printer::kFeedAfterPrint, Saved},
    {key::Control, L"FeedBeforeCut",          &C::m_dwFeedBeforeCut,         0,         meaning::printer::kFeedBeforeCut, Saved},
    {key::Control, L"CutWhenEject",           &C::m_bCutWhenEject,           1,         meaning::printer::kCutWhenEject, Saved},
    {key::Control, L"SendMediaTakenEvent",    &C::m_bSendMediaTakenEvent,    0,         meaning::printer::kSendMediaTakenEvent, Saved},
    {key::Control, L"WaitMediaTakenTime",     &C::m_dwWaitMediaTakenTime,    3,         meaning::printer::kWaitMediaTakenTime, Saved},
    {key::Control, L"IsFullCut",              &C::m_bIsFullCut,              1,         meaning::printer::kFullCut, Saved},
    {key::Control, L"PolicyOfLineSpace",      &C::m_dwPolicyOfLineSpace,     0,         meaning::printer::kPolicyOfLineSpace, Saved},
    {key::Control, L"MinFeedLength",          &C::m_dwMinFeedLength,         0,         meaning::printer::kMinFeedLength, Saved},
    {key::Control, L"TryResetCount",          &C::m_dwTryResetCount,         3,         meaning::printer::kResetCount, Saved},
    {key::Control, L"SendFieldWarnningEvent", &C::m_bSendFieldWarnningEvent, 0,         meaning::printer::kSendFieldWarnningEvent, Saved},
    {key::Control, L"PrintThickness",         &C::m_dwPrintThickness,        0,         meaning::printer::kPrintDensity, Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpPTRMSFPT201RegInfo, CPTRRegInfo, kSettings)
