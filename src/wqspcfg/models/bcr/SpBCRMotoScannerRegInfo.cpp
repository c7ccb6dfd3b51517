#include "wqspcfg/models/bcr/SpBCRMotoScannerRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"

using namespace wqspcfg;

WQSPCFG_SETTINGS(CSpBCRMotoScannerRegInfo, CBCRRegInfo, kMotoScannerRows<CSpBCRMotoScannerRegInfo>)
