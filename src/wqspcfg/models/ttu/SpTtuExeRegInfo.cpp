#include "wqspcfg/models/ttu/SpTtuExeRegInfo.h"

using namespace wqspcfg;

WQSPCFG_SETTINGS(CSpTtuExeRegInfo, CTTURegInfo, kTextTerminalRows<CSpTtuExeRegInfo>)
