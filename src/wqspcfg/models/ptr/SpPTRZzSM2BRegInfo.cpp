#include "wqspcfg/models/ptr/SpPTRZzSM2BRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/PTR.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using namespace wqspcfg::meaning;
using C = CSpPTRZzSM2BRegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Control, L"MatchLev", &C::m_dwMatchLev, 3, printer::kMatchLev, Saved},
    {key::Comm,    L"Port",     &C::m_dwPort,     1, kPort, Saved, RefersTo(Reference::SerialPort)},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpPTRZzSM2BRegInfo, CPTRRegInfo, kSettings)
