#include "wqspcfg/models/idc/SpIDCYK2201RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using C = CSpIDCYK2201RegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Comm, L"Port", &C::m_dwPort, 1,
     meaning::kPort, Saved, RefersTo(Reference::SerialPort)},
    {key::Control, L"WaitTimeOfOnce", &C::m_dwWaitTimeOfOnce, 300, L"duration of one wait in ms", Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpIDCYK2201RegInfo, CIDCRegInfo, kSettings)
