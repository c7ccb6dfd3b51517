#include "wqspcfg/models/ptr/SpPTRZzSm2buRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/PTR.h"

using namespace wqspcfg;
using namespace wqspcfg::meaning;
using C = CSpPTRZzSm2buRegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Control, L"DevType",        &C::m_dwDevType,        0, printer::kNotDocumented, Saved},
    {key::Control, L"ApProtocolType", &C::m_dwApProtocolType, 0, printer::kNotDocumented, Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpPTRZzSm2buRegInfo, CPTRRegInfo, kSettings)
