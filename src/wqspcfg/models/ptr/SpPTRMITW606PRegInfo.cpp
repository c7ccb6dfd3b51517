#include "wqspcfg/models/ptr/SpPTRMITW606PRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"

using namespace wqspcfg;

namespace {

constexpr std::span<const Setting> kSettings; // none of its own

} // namespace

WQSPCFG_SETTINGS(CSpPTRMITW606PRegInfo, CPTRRegInfo, kSettings)
