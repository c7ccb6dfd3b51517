#include "wqspcfg/models/ptr/SpPTRFXP355dbRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/models/shared/PagePrinterRows.h"
#include "wqspcfg/parts/meanings/PTR.h"

using namespace wqspcfg;
using namespace wqspcfg::meaning;
using C = CSpPTRFXP355dbRegInfo;

namespace {

constexpr auto kStampUnit = StampRows(key::Below(L"Stamp\\NEWBSIDBTS100"));

// clang-format off
constexpr Setting kSettings[] = {
    Group(Rows<kPagePrinterRows>),
    {key::Device, L"TonerStatusType", &C::m_dwTonerStatusType, 0,
     L"how the toner status is told; 0 the standard way", Saved},
    {key::Device, L"CheckInputParam",      &C::m_dwCheckInputParam,      0, printer::kCheckInputParam, Saved},
    {key::Device, L"RawDataFilePathStyle", &C::m_dwRawDataFilePathStyle, 0, printer::kRawDataFilePathStyle, Saved},
    {key::Device, L"PrintEndTimeOut", &C::m_dwPrintEndTimeOut, 60,
     L"time-out in s for the end of printing", Saved},
    {key::Device, L"DeviceType", &C::m_dwDeviceType, 0, printer::kNotDocumented, Saved},
    {kStamp,      L"IsStamp",    &C::m_bIsStamp,     0, printer::kIsStamp, Saved},
    {kStamp,      L"StampType",  &C::m_dwStampType,  0, printer::kNotDocumented, Saved},
    Group(Rows<kStampUnit>),
    Group(Rows<kPaperOutRows>),
    {key::Device, L"CountOfTrays", &C::m_dwCountOfTrays, 1, L"number of paper trays", Saved},
    {key::Device, L"SendExeePresented", &C::m_bSendExeePresented, 0,
     L"the media-presented event is sent: 0 no; nonzero yes", Saved},
    {key::Device, L"WaitPrintJob",          &C::m_bWaitPrintJob,           1, printer::kWaitPrintJob, Saved},
    {key::Device, L"PaperStatusStartIndex", &C::m_dwPaperStatusStartIndex, 0, printer::kPaperStatusStartIndex, Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpPTRFXP355dbRegInfo, PagePrinter, kSettings)
