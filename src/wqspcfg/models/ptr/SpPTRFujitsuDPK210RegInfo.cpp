#include "wqspcfg/models/ptr/SpPTRFujitsuDPK210RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/models/shared/PassbookPrinterRows.h"
#include "wqspcfg/parts/meanings/PTR.h"

using namespace wqspcfg;
using namespace wqspcfg::meaning;
using C = CSpPTRFujitsuDPK210RegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    Group(Rows<kLinePassbookPrinterRows>),
    {key::Device, L"UseOneForm",   &C::m_dwUseOneForm,   0,  printer::kUseOneForm, Saved},
    {key::Device, L"StartLineNum", &C::m_dwStartLineNum, 1,  printer::kStartLineNum, Saved},
    {key::Device, L"MaxLineNum",   &C::m_dwMaxLineNum,   24, printer::kMaxLineNum, Saved},
    {key::Device, L"KeepPassbookInAfterPrint", &C::m_bKeepPassbookInAfterPrint, 0,
     L"the passbook stays in the device after printing: 0 no; nonzero yes", Saved},
    {key::Device, L"PowerOnOption",       &C::m_dwPowerOnOption,      1,   printer::kPowerOnOption, Saved},
    {key::Device, L"InsertVertical",      &C::m_bInsertVertical,      0,   printer::kInsertVertical, Saved},
    {key::Device, L"strTrack2",           &C::m_strTrack2,            L"", printer::kTrack2, Saved},
    {key::Device, L"strTrack3",           &C::m_strTrack3,            L"", printer::kTrack3, Saved},
    {key::Device, L"RetractCount",        &C::m_dwRetractCount,       0,   printer::kRetractCount, Saved},
    {key::Device, L"KeepPaperStatusFull", &C::m_bKeepPaperStatusFull, 0,   printer::kKeepPaperStatusFull, Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpPTRFujitsuDPK210RegInfo, LinePassbookPrinter, kSettings)
