#include "wqspcfg/models/shared/RID100Printer.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/models/shared/RID100PrinterRows.h"

namespace wqspcfg {

void RID100Printer::LoadSimData(CLog* pLog)
{
    Loading(*this, pLog).Read(Settings(), kRID100SimulationRows);
}

} // namespace wqspcfg
