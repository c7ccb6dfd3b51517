#include "wqspcfg/models/ptr/SpPTRJT58RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/models/shared/RasterReceiptPrinterRows.h"
#include "wqspcfg/parts/Counter.h"
#include "wqspcfg/parts/meanings/PTR.h"

using namespace wqspcfg;
using namespace wqspcfg::meaning;
using C = CSpPTRJT58RegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    Group(Rows<kRasterReceiptPrinterRows>),
    {key::Control, L"EjectLength",         &C::m_dwEjectLength,        0,   printer::kEjectLength, Saved},
    {key::Control, L"CutWhenEject",        &C::m_bCutWhenEject,        1,   printer::kCutWhenEject, Saved},
    {key::Control, L"SendMediaTakenEvent", &C::m_bSendMediaTakenEvent, 0,   printer::kSendMediaTakenEvent, Saved},
    {key::Control, L"WaitMediaTakenTime",  &C::m_dwWaitMediaTakenTime, 3,   printer::kWaitMediaTakenTime, Saved},
    {key::Control, L"IsFullCut",           &C::m_bIsFullCut,           1,   printer::kFullCut, Saved},
    {key::Control, L"MaxCountWhenLow",     &C::m_dwMaxCountWhenLow,    100, printer::kMaxCountWhenLow, Saved},
    {key::Control, L"CurCountWhenLow",     &C::m_dwCurCountWhenLow,    100, printer::kCurLastCount, Saved},
    {key::Control, L"PrintDensity",        &C::m_dwPrintDensity,       0,   printer::kPrintDensity, Saved},
    {key::Control, L"PrintSpeed",          &C::m_dwPrintSpeed,         0,   printer::kPrintSpeed, Saved},
    {key::Control, L"FixedLineSpace", &C::m_bFixedLineSpace, 0,
     L"the line height is fixed: 0 no; nonzero yes", Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpPTRJT58RegInfo, RasterReceiptPrinter, kSettings)

void CSpPTRJT58RegInfo::ReduceLowCount()
{
    WriteCount(*this, m_dwCurCountWhenLow, OneLess(m_dwCurCountWhenLow), RowOf<kSettings>(L"CurCountWhenLow"));
}

void CSpPTRJT58RegInfo::ResetLowCount()
{
    WriteCount(*this, m_dwCurCountWhenLow, m_dwMaxCountWhenLow, RowOf<kSettings>(L"CurCountWhenLow"));
}
