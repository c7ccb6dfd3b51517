#include "wqspcfg/models/ptr/SpPTRJT58RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/PTR.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using C = CSpPTRJT58RegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Comm,    L"Port",                &C::m_dwPort,               1,         meaning::kPort, Saved},
    {key::Comm,    L"BaudRate",            &C::m_dwBaudRate,           9600,      meaning::kBaudRate, Saved},
    {key::Control, L"PaperWidth",          &C::m_dwPaperWidth,         80,        meaning::printer::kPaperWidth, Saved},
    {key::Control, L"PaperHeight",         &C::m_dwPaperHeight,        297,       meaning::printer::kPaperHeight, Saved},
    {key::Control, L"OffsetValid",         &C::m_bOffsetValid,         0,         meaning::printer::kOffsetValid, Saved},
    {key::Control, L"LineSpace",           &C::m_dwLineSpace,          30,        meaning::printer::kLineSpace, Saved},
    {key::Control, L"WordSpace",           &C::m_dwWordSpace,          0,         meaning::printer::kWordSpace, Saved},
    {key::Control, L"LeftSpace",           &C::m_dwLeftSpace,          0,         meaning::printer::kLeftSpace, Saved},
    {key::Control, L"MustBeBold",          &C::m_bMustBeBold,          0,         meaning::printer::kMustBeBold, Saved},
    {key::Control, L"UseFixFontSize",      &C::m_bUseFixFontSize,      0,         meaning::printer::kUseFixFontSize, Saved},
    {key::Control, L"FontSize",            &C::m_dwFontSize,           12,        meaning::printer::kFontSize, Saved},
    {key::Control, L"UseCPI",              &C::m_bUseCPI,              0,         meaning::printer::kUseCPI, Saved},
    {key::Control, L"MustBeFontName",      &C::m_bMustBeFontName,      0,         meaning::printer::kMustBeFontName, Saved},
    {key::Control, L"FontName",            &C::m_strFontName,          L"SimSun", meaning::printer::kFontName, Saved},
    {key::Control, L"RawDataAsBmp",        &C::m_bRawDataAsBmp,        0,         meaning::printer::kRawDataAsBmp, Saved},
    {key::Control, L"RawDataWordWrap",     &C::m_bRawDataWordWrap,     1,         meaning::printer::kRawDataWordWrap, Saved},
    {key::Control, L"RawDataFontSize",     &C::m_dwRawDataFontSize,    12,        meaning::printer::kRawDataFontSize, Saved},
    {key::Control, L"RawDataFontName",     &C::m_strRawDataFontName,   L"SimSun", meaning::printer::kRawDataFontName, Saved},
    {key::Control, L"UseImageStretch",     &C::m_bUseImageStretch,     0,         meaning::printer::kUseImageStretch, Saved},
    {key::Control, L"BlackColorRangeMax",  &C::m_dwBlackColorRangeMax, 128,       meaning::printer::kBlackColorRangeMax, Saved, Range(0, 255)},
    {key::Control, L"FeedBeforePrint",     &C::m_dwFeedBeforePrint,    0,         meaning::printer::kFeedBeforePrint, Saved},
    {key::Control, L"FeedAfterPrint",      &C::m_dwFeedAfterPrint,     0,         meaning::printer::kFeedAfterPrint, Saved},
    {key::Control, L"EjectLength",         &C::m_dwEjectLength,        0,         meaning::printer::kEjectLength, Saved},
    {key::Control, L"CutWhenEject",        &C::m_bCutWhenEject,        1,         meaning::printer::kCutWhenEject, Saved},
    {key::Control, L"SendMediaTakenEvent", &C::m_bSendMediaTakenEvent, 0,         meaning::printer::kSendMediaTakenEvent, Saved},
    {key::Control, L"WaitMediaTakenTime",  &C::m_dwWaitMediaTakenTime, 3,         meaning::printer::kWaitMediaTakenTime, Saved},
    {key::Control, L"IsFullCut",           &C::m_bIsFullCut,           1,         meaning::printer::kFullCut, Saved},
    {key::Control, L"MaxCountWhenLow",     &C::m_dwMaxCountWhenLow,    100,       meaning::printer::kMaxCountWhenLow, Saved},
    {key::Control, L"CurCountWhenLow",     &C::m_dwCurCountWhenLow,    100,       meaning::printer::kCurLastCount, Saved},
    {key::Control, L"PrintDensity",        &C::m_dwPrintDensity,       0,         meaning::printer::kPrintDensity, Saved},
    {key::Control, L"PrintSpeed",          &C::m_dwPrintSpeed,         0,         meaning::printer::kPrintSpeed, Saved},
    {key::Control, L"FixedLineSpace",      &C::m_bFixedLineSpace,      0,         L"the line height is fixed: 0 no; nonzero yes", Saved},
};
// clang-format on

constexpr const wchar_t* kCounter[] = {L"CurCountWhenLow"};
constexpr auto kCounterRow = SaveOrder(kSettings, kCounter, false);

} // namespace

WQSPCFG_SETTINGS(CSpPTRJT58RegInfo, CPTRRegInfo, kSettings)

void CSpPTRJT58RegInfo::ReduceLowCount()
{
    if (m_dwCurCountWhenLow > 0) {
        --m_dwCurCountWhenLow;
    }
    Saving(*this).Write(kCounterRow);
}

void CSpPTRJT58RegInfo::ResetLowCount()
{
    m_dwCurCountWhenLow = m_dwMaxCountWhenLow;
    Saving(*this).Write(kCounterRow);
}
