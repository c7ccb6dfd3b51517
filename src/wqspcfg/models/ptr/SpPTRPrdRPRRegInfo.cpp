#include "wqspcfg/models/ptr/SpPTRPrdRPRRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/Counter.h"
#include "wqspcfg/parts/meanings/PTR.h"

using namespace wqspcfg;
using namespace wqspcfg::meaning;
using C = CSpPTRPrdRPRRegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Control, L"PrintMode",       &C::m_dwPrintMode,       0, printer::kNotDocumented, Saved},
    {key::Control, L"PrintBMPMode",    &C::m_dwPrintBMPMode,    0, printer::kNotDocumented, Saved},
    {key::Control, L"UseBlackMark",    &C::m_bUseBlackMark,     0, printer::kIsUseBlackMark, Saved},
    {key::Control, L"PowerOnAction",   &C::m_dwPowerOnAction,   0, printer::kPowerOnOption, Saved},
    {key::Control, L"FullCut",         &C::m_bFullCut,          1, printer::kFullCut, Saved},
    {key::Control, L"CutModeEx",       &C::m_dwCutModeEx,       0, printer::kNotDocumented, Saved},
    {key::Control, L"FeedBeforePrint", &C::m_dwFeedBeforePrint, 0, printer::kFeedBeforePrint, Saved},
    {key::Control, L"FeedAfterPrint",  &C::m_dwFeedAfterPrint,  0, printer::kFeedAfterPrint, Saved},
    {key::Control, L"FeedBeforeCut",   &C::m_dwFeedBeforeCut,   0, printer::kFeedBeforeCut, Saved},
    {key::Control, L"EjectLength",     &C::m_dwEjectLength,     0, printer::kEjectLength, Saved},
    {key::Control, L"MinFeedLength",   &C::m_dwMinFeedLength,   0, printer::kMinFeedLength, Saved},
    {key::Control, L"AddNullToUnicodeFields", &C::m_bAddNullToUnicodeFields, 0,
     printer::kAddNullToUnicodeFields, Saved},
    {key::Control, L"MediaControlPolicy", &C::m_dwMediaControlPolicy, 0,
     L"policy for the media control of commands; 0 as the standard says", Saved},
    {key::Control, L"OffsetValid",       &C::m_bOffsetValid,       0, printer::kOffsetValid, Saved},
    {key::Control, L"IgnoreInvalidData", &C::m_bIgnoreInvalidData, 0, printer::kIgnoreInvalidData, Saved},
    {key::Control, L"MediaNameWhenEmpty", &C::m_strMediaNameWhenEmpty, L"",
     L"media name used when a command gives none", Saved},
    {key::Control, L"SendFieldWarnningEvent", &C::m_bSendFieldWarnningEvent, 0,
     printer::kSendFieldWarnningEvent, Saved},
    {key::Control, L"SendMediaTakenEvent", &C::m_bSendMediaTakenEvent, 0,         printer::kSendMediaTakenEvent, Saved},
    {key::Control, L"WaitMediaTakenTime",  &C::m_dwWaitMediaTakenTime, 3,         printer::kWaitMediaTakenTime, Saved},
    {key::Control, L"LeftSpace",           &C::m_dwLeftSpace,          0,         printer::kLeftSpace, Saved},
    {key::Control, L"LineSpace",           &C::m_dwLineSpace,          30,        printer::kLineSpace, Saved},
    {key::Control, L"WordSpace",           &C::m_dwWordSpace,          0,         printer::kWordSpace, Saved},
    {key::Control, L"RawDataFontSize",     &C::m_dwRawDataFontSize,    12,        printer::kRawDataFontSize, Saved},
    {key::Control, L"RawDataFontName",     &C::m_strRawDataFontName,   L"SimSun", printer::kRawDataFontName, Saved},
    {key::Control, L"RawDataWordWrap",     &C::m_bRawDataWordWrap,     1,         printer::kRawDataWordWrap, Saved},
    {key::Control, L"RawDataMustBeBold", &C::m_bRawDataMustBeBold, 0,
     L"raw data are always printed bold: 0 no; nonzero yes", Saved},
    {key::Control, L"RawDataRowBitCount", &C::m_dwRawDataRowBitCount, 0, printer::kRawDataRowBitCount, Saved},
    {key::Control, L"RawDataSuppEscape", &C::m_bRawDataSuppEscape, 0,
     L"raw data may hold escape sequences: 0 no; nonzero yes", Saved},
    {key::Control, L"PrintFormMustBeBold", &C::m_bPrintFormMustBeBold, 0,
     L"forms are always printed bold: 0 no; nonzero yes", Saved},
    {key::Control, L"PrintFormFontSize", &C::m_dwPrintFormFontSize, 12, L"size of the font for forms", Saved},
    {key::Control, L"PrintFormWordWrap", &C::m_bPrintFormWordWrap, 0,
     L"form text that runs beyond the line is wrapped: 0 no; nonzero yes", Saved},
    {key::Control, L"UseCPI",            &C::m_bUseCPI,              0,         printer::kUseCPI, Saved},
    {key::Control, L"PrintFormFontName", &C::m_strPrintFormFontName, L"SimSun", L"name of the font for forms", Saved},
    {key::Control, L"LineSpacePolicy",   &C::m_dwLineSpacePolicy,    0,         printer::kPolicyOfLineSpace, Saved},
    {key::Control, L"ImageStretch",      &C::m_bImageStretch,        0,         printer::kUseImageStretch, Saved},
    {key::Control, L"MaxBlackColor",     &C::m_dwMaxBlackColor,      128,       printer::kBlackColorRangeMax, Saved},
    {key::Control, L"PrintSpeed",        &C::m_dwPrintSpeed,         0,         printer::kPrintSpeed, Saved},
    {key::Control, L"PrintThickness",    &C::m_dwPrintThickness,     0,         printer::kPrintDensity, Saved},
    {key::Control, L"Charset",           &C::m_dwCharset,            0,         printer::kCharSet, Saved},
    {key::Control, L"RetractCount",      &C::m_dwRetractCount,       0,         printer::kRetractCount, Saved},
    {key::Control, L"CurLastCount",      &C::m_dwCurLastCount,       100,       printer::kCurLastCount, Saved},
    {key::Device, L"DN.RPR_RECEIPT", &C::m_strDN_RPR_RECEIPT, L"",
     L"device name of the driver of the receipt printer", Saved},
    {key::Control, L"TryResetCount", &C::m_dwTryResetCount, 3, printer::kResetCount, Saved},
    {key::Control, L"RawDataStyle",  &C::m_dwRawDataStyle,  0, printer::kRawDataStyle, Saved},
    {key::Control, L"UseOneFormPrintManyKindsReceipt", &C::m_bUseOneFormPrintManyKindsReceipt, 0,
     printer::kUseOneFormPrintManyKindsReceipt, Saved},
    {key::Control, L"AdjustPosY",        &C::m_dwAdjustPosY,        0, printer::kAdjustPosY, Saved},
    {key::Control, L"PrintIntervalTime", &C::m_dwPrintIntervalTime, 0, printer::kPrintIntervalTime, Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpPTRPrdRPRRegInfo, CPTRRegInfo, kSettings)

void CSpPTRPrdRPRRegInfo::SetRetractCount(DWORD dwCount)
{
    WriteCount(*this, m_dwRetractCount, dwCount, RowOf<kSettings>(L"RetractCount"));
}

void CSpPTRPrdRPRRegInfo::SetCurLastCount(DWORD dwCount)
{
    WriteCount(*this, m_dwCurLastCount, dwCount, RowOf<kSettings>(L"CurLastCount"));
}
