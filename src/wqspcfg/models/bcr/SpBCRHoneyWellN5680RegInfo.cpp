#include "wqspcfg/models/bcr/SpBCRHoneyWellN5680RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using C = CSpBCRHoneyWellN5680RegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    Group(Rows<kSerialBarcodeReaderRows<C>>),
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpBCRHoneyWellN5680RegInfo, CBCRRegInfo, kSettings)
