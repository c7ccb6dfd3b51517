#include "wqspcfg/models/idc/SpIDCDCT6URegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using C = CSpIDCDCT6URegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Comm, L"Type", &C::m_dwType, 0, meaning::kNotDocumented, Saved},
    {key::Comm, L"Port", &C::m_dwPort, 1, meaning::kPort, Saved, RefersTo(Reference::SerialPort)},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpIDCDCT6URegInfo, CIDCRegInfo, kSettings)
