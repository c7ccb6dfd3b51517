#include "wqspcfg/models/bcr/SpBCRMotoRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"

using namespace wqspcfg;

WQSPCFG_SETTINGS(CSpBCRMotoRegInfo, CBCRRegInfo, kMotoScannerRows<CSpBCRMotoRegInfo>)
