#include "wqspcfg/models/idc/SpIDCPrdMCReadeRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"

using namespace wqspcfg;
using C = CSpIDCPrdMCReadeRegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Device, L"DN.IDC_SWIPE", &C::m_strDN_IDC_SWIPE, L"",
     L"name of the device driver module of the swipe card reader", Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpIDCPrdMCReadeRegInfo, CIDCRegInfo, kSettings)
