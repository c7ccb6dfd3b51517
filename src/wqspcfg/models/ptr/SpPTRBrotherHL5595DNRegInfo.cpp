#include "wqspcfg/models/ptr/SpPTRBrotherHL5595DNRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/models/shared/PagePrinterRows.h"

using namespace wqspcfg;
using C = CSpPTRBrotherHL5595DNRegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    Group(Rows<kPagePrinterRows>),
    Group(Rows<kStampingUnitRows>),
    Group(Rows<kJobPagePrinterRows>),
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpPTRBrotherHL5595DNRegInfo, JobPagePrinter, kSettings)
