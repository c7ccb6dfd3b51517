#include "wqspcfg/models/ptr/SpPTRGHPOS1900RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/PTR.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using C = CSpPTRGHPOS1900RegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Comm,    L"Port",                     &C::m_dwPort,                    1,    meaning::kPort, Saved},
    {key::Comm,    L"BaudRate",                 &C::m_dwBaudRate,                9600, meaning::kBaudRate, Saved},
    {key::Control, L"IsUseBlackMark",           &C::m_bIsUseBlackMark,           0,    meaning::printer::kIsUseBlackMark, Saved},
    {key::Control, L"RawDataStyle",             &C::m_dwRawDataStyle,            0,    meaning::printer::kRawDataStyle, Saved},
    {key::Control, L"LineSpace",                &C::m_dwLineSpace,               30,   meaning::printer::kLineSpace, Saved},
    {key::Control, L"LeftMargin",               &C::m_dwLeftMargin,              0,    meaning::printer::kLeftMargin, Saved},
    {key::Control, L"CutPosition",              &C::m_dwCutPosition,             0,    meaning::printer::kCutPos, Saved},
    {key::Control, L"PrintPos",                 &C::m_dwPrintPos,                0,    meaning::printer::kPrintPos, Saved},
    {key::Control, L"EnCharSpace",              &C::m_dwEnCharSpace,             0,    meaning::printer::kEnCharSpace, Saved},
    {key::Control, L"ChCharSpaceLeft",          &C::m_dwChCharSpaceLeft,         0,    meaning::printer::kChCharSpaceLeft, Saved},
    {key::Control, L"ChCharSpaceRight",         &C::m_dwChCharSpaceRight,        0,    meaning::printer::kChCharSpaceRight, Saved},
    {key::Control, L"PrintTimeOut",             &C::m_dwPrintTimeOut,            30,   meaning::printer::kPrintTimeOut, Saved},
    {key::Control, L"BidirectionalPtr",         &C::m_bBidirectionalPtr,         0,    L"print in both directions: 0 no; nonzero yes", Saved},
    {key::Control, L"CutAll",                   &C::m_bCutAll,                   1,    meaning::printer::kFullCut, Saved},
    {key::Control, L"UseHalfPlot",              &C::m_bUseHalfPlot,              0,    L"pictures are printed in half dots: 0 no; nonzero yes", Saved},
    {key::Control, L"EjectBeforeCut",           &C::m_bEjectBeforeCut,           0,    L"the paper is ejected before the cut: 0 no; nonzero yes", Saved},
    {key::Control, L"FeedLineTimeOut",          &C::m_dwFeedLineTimeOut,         10,   L"time-out of feeding a line in s", Saved},
    {key::Control, L"ResetSuccessWhenPaperOut", &C::m_bResetSuccessWhenPaperOut, 0,    L"a reset succeeds while paper is out: 0 no; nonzero yes", Saved},
    {key::Control, L"OffsetValid",              &C::m_bOffsetValid,              0,    meaning::printer::kOffsetValid, Saved},
    {key::Control, L"IsSendMediaTakenEvent",    &C::m_bIsSendMediaTakenEvent,    0,    meaning::printer::kSendMediaTakenEvent, Saved},
    {key::Control, L"CurLastCount",             &C::m_dwCurLastCount,            100,  meaning::printer::kCurLastCount, Saved},
    {key::Control, L"UseCountWhenLow",          &C::m_bUseCountWhenLow,          0,    meaning::printer::kUseCountWhenLow, Saved},
};
// clang-format on

constexpr const wchar_t* kCounter[] = {L"CurLastCount"};
constexpr auto kCounterRow = SaveOrder(kSettings, kCounter, false);

} // namespace

WQSPCFG_SETTINGS(CSpPTRGHPOS1900RegInfo, CPTRRegInfo, kSettings)

void CSpPTRGHPOS1900RegInfo::DescCurLowCount()
{
    if (m_dwCurLastCount > 0) {
        --m_dwCurLastCount;
    }
    Saving(*this).Write(kCounterRow);
}
