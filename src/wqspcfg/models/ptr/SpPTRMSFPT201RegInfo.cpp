#include "wqspcfg/models/ptr/SpPTRMSFPT201RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/PTR.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using namespace wqspcfg::meaning;
using C = CSpPTRMSFPT201RegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Comm,    L"Port",        &C::m_dwPort,        1,    kPort, Saved, RefersTo(Reference::SerialPort)},
    {key::Comm,    L"BaudRate",    &C::m_dwBaudRate,    9600, kBaudRate, Saved},
    {key::Control, L"MachineType", &C::m_dwMachineType, 0,    printer::kNotDocumented, Saved},
    {key::Control, L"PolicyOfPaperState", &C::m_dwPolicyOfPaperState, 0,
     L"policy for the paper status; 0 the device's standard", Saved},
    {key::Control, L"OffsetValid",         &C::m_bOffsetValid,         0,         printer::kOffsetValid, Saved},
    {key::Control, L"LineSpace",           &C::m_dwLineSpace,          30,        printer::kLineSpace, Saved},
    {key::Control, L"WordSpace",           &C::m_dwWordSpace,          0,         printer::kWordSpace, Saved},
    {key::Control, L"LeftSpace",           &C::m_dwLeftSpace,          0,         printer::kLeftSpace, Saved},
    {key::Control, L"MustBeBold",          &C::m_bMustBeBold,          0,         printer::kMustBeBold, Saved},
    {key::Control, L"FontSize",            &C::m_dwFontSize,           12,        printer::kFontSize, Saved},
    {key::Control, L"UseCPI",              &C::m_bUseCPI,              0,         printer::kUseCPI, Saved},
    {key::Control, L"FontName",            &C::m_strFontName,          L"SimSun", printer::kFontName, Saved},
    {key::Control, L"RawDataAsBmp",        &C::m_bRawDataAsBmp,        0,         printer::kRawDataAsBmp, Saved},
    {key::Control, L"RawDataWordWrap",     &C::m_bRawDataWordWrap,     1,         printer::kRawDataWordWrap, Saved},
    {key::Control, L"RawDataFontSize",     &C::m_dwRawDataFontSize,    12,        printer::kRawDataFontSize, Saved},
    {key::Control, L"RawDataFontName",     &C::m_strRawDataFontName,   L"SimSun", printer::kRawDataFontName, Saved},
    {key::Control, L"ImageStretch",        &C::m_bImageStretch,        0,         printer::kUseImageStretch, Saved},
    {key::Control, L"MaxBlackValue",       &C::m_dwMaxBlackValue,      128,       printer::kBlackColorRangeMax, Saved},
    {key::Control, L"FeedBeforePrint",     &C::m_dwFeedBeforePrint,    0,         printer::kFeedBeforePrint, Saved},
    {key::Control, L"FeedAfterPrint",      &C::m_dwFeedAfterPrint,     0,         printer::kFeedAfterPrint, Saved},
    {key::Control, L"FeedBeforeCut",       &C::m_dwFeedBeforeCut,      0,         printer::kFeedBeforeCut, Saved},
    {key::Control, L"CutWhenEject",        &C::m_bCutWhenEject,        1,         printer::kCutWhenEject, Saved},
    {key::Control, L"SendMediaTakenEvent", &C::m_bSendMediaTakenEvent, 0,         printer::kSendMediaTakenEvent, Saved},
    {key::Control, L"WaitMediaTakenTime",  &C::m_dwWaitMediaTakenTime, 3,         printer::kWaitMediaTakenTime, Saved},
    {key::Control, L"IsFullCut",           &C::m_bIsFullCut,           1,         printer::kFullCut, Saved},
    {key::Control, L"PolicyOfLineSpace",   &C::m_dwPolicyOfLineSpace,  0,         printer::kPolicyOfLineSpace, Saved},
    {key::Control, L"MinFeedLength",       &C::m_dwMinFeedLength,      0,         printer::kMinFeedLength, Saved},
    {key::Control, L"TryResetCount",       &C::m_dwTryResetCount,      3,         printer::kResetCount, Saved},
    {key::Control, L"SendFieldWarnningEvent", &C::m_bSendFieldWarnningEvent, 0,
     printer::kSendFieldWarnningEvent, Saved},
    {key::Control, L"PrintThickness", &C::m_dwPrintThickness, 0, printer::kPrintDensity, Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpPTRMSFPT201RegInfo, CPTRRegInfo, kSettings)
