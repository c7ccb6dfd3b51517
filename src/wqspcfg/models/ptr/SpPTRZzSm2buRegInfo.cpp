#include "wqspcfg/models/ptr/SpPTRZzSm2buRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/PTR.h"

using namespace wqspcfg;
using C = CSpPTRZzSm2buRegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Control, L"DevType",        &C::m_dwDevType,        0, meaning::printer::kDevType, Saved},
    {key::Control, L"ApProtocolType", &C::m_dwApProtocolType, 0, L"protocol of the application; 0 the standard one", Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpPTRZzSm2buRegInfo, CPTRRegInfo, kSettings)
