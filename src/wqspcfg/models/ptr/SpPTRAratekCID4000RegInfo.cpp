#include "wqspcfg/models/ptr/SpPTRAratekCID4000RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"

using namespace wqspcfg;

namespace {

constexpr std::span<const Setting> kSettings; // none of its own

} // namespace

WQSPCFG_SETTINGS(CSpPTRAratekCID4000RegInfo, CPTRRegInfo, kSettings)
