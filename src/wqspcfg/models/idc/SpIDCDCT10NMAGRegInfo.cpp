#include "wqspcfg/models/idc/SpIDCDCT10NMAGRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/models/shared/CardReaderPartsRows.h"
#include "wqspcfg/parts/meanings/IDC.h"

using namespace wqspcfg;
using C = CSpIDCDCT10NMAGRegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    Group(Rows<kDcReaderRows>),
    {key::Control, L"TimeOutOfReadMagCard", &C::m_dwTimeOutOfReadMagCard, 30, meaning::kTimeOutOfReadMagCard, Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpIDCDCT10NMAGRegInfo, DcReader, kSettings)
