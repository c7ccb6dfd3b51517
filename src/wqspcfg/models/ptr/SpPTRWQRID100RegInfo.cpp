#include "wqspcfg/models/ptr/SpPTRWQRID100RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/models/shared/RID100PrinterRows.h"

using namespace wqspcfg;

namespace {

constexpr OperationSettings kOnRequest[] = {{L"LoadSimData", L"", Rows<kRID100SimulationRows>}};

} // namespace

WQSPCFG_SETTINGS(CSpPTRWQRID100RegInfo, RID100Printer, kRID100Rows, {}, kOnRequest)
