#include "wqspcfg/models/idc/SpIDCSysCanA8RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/IDC.h"

using namespace wqspcfg;
using C = CSpIDCSysCanA8RegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Device, L"IDCardImagePath", &C::m_strIDCardImagePath, L"", meaning::kIDCardImagePath, Saved},
    {key::Device, L"AutoEject", &C::m_bAutoEject, 0,
     L"the card is ejected automatically: 0 no; nonzero yes", Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpIDCSysCanA8RegInfo, CIDCRegInfo, kSettings)
