#include "wqspcfg/models/idc/SpIDCDCT10NCPURegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/models/shared/CardReaderPartsRows.h"
#include "wqspcfg/parts/meanings/IDC.h"

using namespace wqspcfg;
using C = CSpIDCDCT10NCPURegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    Group(Rows<kDcReaderRows>),
    {key::Control, L"HandleRepeatCardPolicy", &C::m_dwHandleRepeatCardPolicy, 0,
     meaning::kHandleRepeatCardPolicy, Saved},
    {key::Control, L"CheckCardInsertOfIdle", &C::m_bCheckCardInsertOfIdle, 0, meaning::kCheckCardInsertOfIdle, Saved},
    {key::Control, L"TranformIC2Hex",        &C::m_bTranformIC2Hex,        0, meaning::kTranformIC2Hex, Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpIDCDCT10NCPURegInfo, DcReader, kSettings)
