#include "wqspcfg/models/ptr/SpPTREpsonTMU220RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/models/shared/BlackMarkReceiptPrinterRows.h"

using namespace wqspcfg;

WQSPCFG_SETTINGS(CSpPTREpsonTMU220RegInfo, BlackMarkReceiptPrinter, kBlackMarkReceiptPrinterRows)
