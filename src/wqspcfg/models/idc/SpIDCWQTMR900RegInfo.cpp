#include "wqspcfg/models/idc/SpIDCWQTMR900RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/IDC.h"

using namespace wqspcfg;
using C = CSpIDCWQTMR900RegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Device, L"IDCardImagePath", &C::m_strIDCardImagePath, L"", meaning::kIDCardImagePath, Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpIDCWQTMR900RegInfo, CIDCRegInfo, kSettings)
