#include "wqspcfg/models/idc/SpIDCTYRM9000LRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using C = CSpIDCTYRM9000LRegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Comm, L"Port", &C::m_dwPort, 1, meaning::kPort, Saved, RefersTo(Reference::SerialPort)},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpIDCTYRM9000LRegInfo, CIDCRegInfo, kSettings)
