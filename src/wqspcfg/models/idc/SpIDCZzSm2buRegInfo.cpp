#include "wqspcfg/models/idc/SpIDCZzSm2buRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/IDC.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using C = CSpIDCZzSm2buRegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Device, L"InvialMediaContinueWait", &C::m_bInvialMediaContinueWait, 0,
     meaning::kInvialMediaContinueWait, Saved},
    {key::Control, L"DevTimeOut", &C::m_dwDevTimeOut, 30, L"time-out of the device in seconds", Saved},
    {key::Control, L"SPDBAddVenid", &C::m_bSPDBAddVenid, 0,
     L"the vendor ID is added for one bank's application (SPDB): 0 no; nonzero yes", Saved},
    {key::Control, L"DevType", &C::m_dwDevType, 0, meaning::kNotDocumented, Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpIDCZzSm2buRegInfo, CIDCRegInfo, kSettings)
