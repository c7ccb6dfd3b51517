#include "wqspcfg/models/ptr/SpPTRMaiDiV3RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"

using namespace wqspcfg;
using C = CSpPTRMaiDiV3RegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Control, L"GetFeatureTimeOut", &C::m_dwGetFeatureTimeOut, 30,
     L"time-out in s for getting the feature", Saved},
    {key::Control, L"RetryTimeWhenFaliue", &C::m_dwRetryTimeWhenFaliue, 3, L"number of retries after a failure", Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpPTRMaiDiV3RegInfo, CPTRRegInfo, kSettings)
