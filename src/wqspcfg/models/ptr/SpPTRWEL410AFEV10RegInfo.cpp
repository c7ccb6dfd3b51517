#include "wqspcfg/models/ptr/SpPTRWEL410AFEV10RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/PTR.h"

using namespace wqspcfg;
using namespace wqspcfg::meaning;
using C = CSpPTRWEL410AFEV10RegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Control, L"DevType", &C::m_dwDevType, 0, printer::kNotDocumented, Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpPTRWEL410AFEV10RegInfo, CPTRRegInfo, kSettings)
