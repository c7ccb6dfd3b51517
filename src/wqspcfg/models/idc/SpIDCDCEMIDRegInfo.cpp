#include "wqspcfg/models/idc/SpIDCDCEMIDRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/models/shared/CardReaderPartsRows.h"
#include "wqspcfg/parts/meanings/IDC.h"

using namespace wqspcfg;
using C = CSpIDCDCEMIDRegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    Group(Rows<kDcReaderRows>),
    {key::Control, L"HandleRepeatCardPolicy", &C::m_dwHandleRepeatCardPolicy, 0,
     meaning::kHandleRepeatCardPolicy, Saved},
    {key::Control, L"CheckCardInsertOfIdle", &C::m_bCheckCardInsertOfIdle, 0, meaning::kCheckCardInsertOfIdle, Saved},
    {key::Control, L"ReadTracks",            &C::m_dwReadTracks,           7, meaning::kReadTracks, Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpIDCDCEMIDRegInfo, DcReader, kSettings)
