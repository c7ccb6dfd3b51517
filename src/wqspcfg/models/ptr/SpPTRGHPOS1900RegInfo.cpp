#include "wqspcfg/models/ptr/SpPTRGHPOS1900RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/models/shared/BlackMarkReceiptPrinterRows.h"
#include "wqspcfg/parts/Counter.h"
#include "wqspcfg/parts/meanings/PTR.h"

using namespace wqspcfg;
using namespace wqspcfg::meaning;
using C = CSpPTRGHPOS1900RegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    Group(Rows<kBlackMarkReceiptPrinterRows>),
    {key::Control, L"BidirectionalPtr", &C::m_bBidirectionalPtr, 0,
     L"print in both directions: 0 no; nonzero yes", Saved},
    {key::Control, L"CutAll", &C::m_bCutAll, 1, printer::kFullCut, Saved},
    {key::Control, L"UseHalfPlot", &C::m_bUseHalfPlot, 0,
     L"pictures are printed in half dots: 0 no; nonzero yes", Saved},
    {key::Control, L"EjectBeforeCut", &C::m_bEjectBeforeCut, 0,
     L"the paper is ejected before the cut: 0 no; nonzero yes", Saved},
    {key::Control, L"FeedLineTimeOut", &C::m_dwFeedLineTimeOut, 10, L"time-out of feeding a line in s", Saved},
    {key::Control, L"ResetSuccessWhenPaperOut", &C::m_bResetSuccessWhenPaperOut, 0,
     L"a reset succeeds while paper is out: 0 no; nonzero yes", Saved},
    {key::Control, L"OffsetValid",           &C::m_bOffsetValid,           0,   printer::kOffsetValid, Saved},
    {key::Control, L"IsSendMediaTakenEvent", &C::m_bIsSendMediaTakenEvent, 0,   printer::kSendMediaTakenEvent, Saved},
    {key::Control, L"CurLastCount",          &C::m_dwCurLastCount,         100, printer::kCurLastCount, Saved},
    {key::Control, L"UseCountWhenLow",       &C::m_bUseCountWhenLow,       0,   printer::kUseCountWhenLow, Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpPTRGHPOS1900RegInfo, BlackMarkReceiptPrinter, kSettings)

void CSpPTRGHPOS1900RegInfo::DescCurLowCount()
{
    WriteCount(*this, m_dwCurLastCount, OneLess(m_dwCurLastCount), RowOf<kSettings>(L"CurLastCount"));
}
