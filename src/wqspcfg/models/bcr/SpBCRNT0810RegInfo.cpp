#include "wqspcfg/models/bcr/SpBCRNT0810RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using C = CSpBCRNT0810RegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    Group(Rows<kSerialBarcodeReaderRows<C>>),
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpBCRNT0810RegInfo, CBCRRegInfo, kSettings)
