#include "wqspcfg/models/shared/RID100Printer.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/models/shared/RID100PrinterRows.h"

namespace wqspcfg {

void RID100Printer::LoadSimData(CLog* pLog)
{
    Loading(*this, pLog).Read(Settings(), Rows<kRID100SimulationRows>);
}

} // namespace wqspcfg
