#include "wqspcfg/models/ptr/SpPTRLMMS811dnRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/models/shared/PagePrinterRows.h"
#include "wqspcfg/parts/meanings/PTR.h"

using namespace wqspcfg;
using namespace wqspcfg::meaning;
using C = CSpPTRLMMS811dnRegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    Group(Rows<kPageCheckRows>),
    {key::Device, L"RawDataFilePathStyle", &C::m_dwRawDataFilePathStyle, 0, printer::kRawDataFilePathStyle, Saved},
    Group(Rows<kPageFontRows>),
    Group(Rows<kStampingUnitRows>),
    Group(Rows<kJobPagePrinterRows>),
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpPTRLMMS811dnRegInfo, JobPagePrinter, kSettings)
