#include "wqspcfg/models/ptr/SpPTRHPPW552DWRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/models/shared/PagePrinterRows.h"
#include "wqspcfg/parts/meanings/PTR.h"

using namespace wqspcfg;
using namespace wqspcfg::meaning;
using C = CSpPTRHPPW552DWRegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    Group(Rows<kPagePrinterRows>),
    Group(Rows<kStampingUnitRows>),
    {key::Device, L"dwRawdataParseID", &C::m_dwRawdataParseID, 0, printer::kRawDataParseID, Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpPTRHPPW552DWRegInfo, PagePrinter, kSettings)
