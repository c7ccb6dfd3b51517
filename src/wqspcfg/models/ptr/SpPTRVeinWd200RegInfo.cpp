#include "wqspcfg/models/ptr/SpPTRVeinWd200RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"

using namespace wqspcfg;

namespace {

constexpr std::span<const Setting> kSettings; // none of its own

} // namespace

WQSPCFG_SETTINGS(CSpPTRVeinWd200RegInfo, CPTRRegInfo, kSettings)
