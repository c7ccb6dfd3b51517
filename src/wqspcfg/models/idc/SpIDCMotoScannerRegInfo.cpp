#include "wqspcfg/models/idc/SpIDCMotoScannerRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"

using namespace wqspcfg;

WQSPCFG_SETTINGS(CSpIDCMotoScannerRegInfo, CBCRRegInfo, kMotoScannerRows<CSpIDCMotoScannerRegInfo>)
