#include "wqspcfg/models/ptr/SpPTRAH32RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/PTR.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using C = CSpPTRAH32RegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Comm,    L"Port",                            &C::m_dwPort,                           1,         meaning::kPort, Saved},
    {key::Comm,    L"BaudRate",                        &C::m_dwBaudRate,                       9600,      meaning::kBaudRate, Saved},
    {key::Control, L"PaperWidth",                      &C::m_dwPaperWidth,                     80,        meaning::printer::kPaperWidth, Saved},
    {key::Control, L"PaperHeight",                     &C::m_dwPaperHeight,                    297,       meaning::printer::kPaperHeight, Saved},
    {key::Control, L"OffsetValid",                     &C::m_bOffsetValid,                     0,         meaning::printer::kOffsetValid, Saved},
    {key::Control, L"LineSpace",                       &C::m_dwLineSpace,                      30,        meaning::printer::kLineSpace, Saved},
    {key::Control, L"WordSpace",                       &C::m_dwWordSpace,                      0,         meaning::printer::kWordSpace, Saved},
    {key::Control, L"LeftSpace",                       &C::m_dwLeftSpace,                      0,         meaning::printer::kLeftSpace, Saved},
    {key::Control, L"MustBeBold",                      &C::m_bMustBeBold,                      0,         meaning::printer::kMustBeBold, Saved},
    {key::Control, L"UseFixFontSize",                  &C::m_bUseFixFontSize,                  0,         meaning::printer::kUseFixFontSize, Saved},
    {key::Control, L"FontSize",                        &C::m_dwFontSize,                       12,        meaning::printer::kFontSize, Saved},
    {key::Control, L"UseCPI",                          &C::m_bUseCPI,                          0,         meaning::printer::kUseCPI, Saved},
    {key::Control, L"MustBeFontName",                  &C::m_bMustBeFontName,                  0,         meaning::printer::kMustBeFontName, Saved},
    {key::Control, L"FontName",                        &C::m_strFontName,                      L"SimSun", meaning::printer::kFontName, Saved},
    {key::Control, L"RawDataAsBmp",                    &C::m_bRawDataAsBmp,                    0,         meaning::printer::kRawDataAsBmp, Saved},
    {key::Control, L"RawDataWordWrap",                 &C::m_bRawDataWordWrap,                 1,         meaning::printer::kRawDataWordWrap, Saved},
    {key::Control, L"RawDataFontSize",                 &C::m_dwRawDataFontSize,                12,        meaning::printer::kRawDataFontSize, Saved},
    {key::Control, L"RawDataFontName",                 &C::m_strRawDataFontName,               L"SimSun", meaning::printer::kRawDataFontName, Saved},
    {key::Control, L"UseImageStretch",                 &C::m_bUseImageStretch,                 0,         meaning::printer::kUseImageStretch, Saved},
    {key::Control, L"BlackColorRangeMax",              &C::m_dwBlackColorRangeMax,             128,       meaning::printer::kBlackColorRangeMax, Saved, Range(0, 255)},
    {key::Control, L"FeedBeforePrint",                 &C::m_dwFeedBeforePrint,                0,         meaning::printer::kFeedBeforePrint, Saved},
    {key::Control, L"FeedAfterPrint",                  &C::m_dwFeedAfterPrint,                 0,         meaning::printer::kFeedAfterPrint, Saved},
    {key::Control, L"SendMediaTakenEvent",             &C::m_bSendMediaTakenEvent,             0,         meaning::printer::kSendMediaTakenEvent, Saved},
    {key::Control, L"WaitMediaTakenTime",              &C::m_dwWaitMediaTakenTime,             3,         meaning::printer::kWaitMediaTakenTime, Saved},
    {key::Control, L"PrintIntervalTime",               &C::m_dwPrintIntervalTime,              0,         meaning::printer::kPrintIntervalTime, Saved},
    {key::Control, L"PolicyOfLineSpace",               &C::m_dwPolicyOfLineSpace,              0,         meaning::printer::kPolicyOfLineSpace, Saved},
    {key::Control, L"UseOneFormPrintManyKindsReceipt", &C::m_bUseOneFormPrintManyKindsReceipt, 0,         meaning::printer::kUseOneFormPrintManyKindsReceipt, Saved},
    {key::Control, L"AdjustPosY",                      &C::m_dwAdjustPosY,                     0,         meaning::printer::kAdjustPosY, Saved},
    {key::Control, L"RawDataStyle",                    &C::m_dwRawDataStyle,                   0,         meaning::printer::kRawDataStyle, Saved},
    {key::Control, L"IgnoreInvalidData",               &C::m_bIgnoreInvalidData,               0,         meaning::printer::kIgnoreInvalidData, Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpPTRAH32RegInfo, CPTRRegInfo, kSettings)
