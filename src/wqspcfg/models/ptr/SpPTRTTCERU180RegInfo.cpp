#include "wqspcfg/models/ptr/SpPTRTTCERU180RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/PTR.h"

using namespace wqspcfg;
using namespace wqspcfg::meaning;
using C = CSpPTRTTCERU180RegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Control, L"BrushWait", &C::m_dwBrushWait, 30, printer::kBrushWait, Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpPTRTTCERU180RegInfo, CPTRRegInfo, kSettings)
