#include "wqspcfg/models/ptr/SpACTT5RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/PTR.h"

using namespace wqspcfg;
using namespace wqspcfg::meaning;
using C = CSpACTT5RegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Control, L"TimeOut", &C::m_dwTimeOut, 30, printer::kTimeOut, Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpACTT5RegInfo, CPTRRegInfo, kSettings)
