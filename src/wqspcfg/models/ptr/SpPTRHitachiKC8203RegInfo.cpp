#include "wqspcfg/models/ptr/SpPTRHitachiKC8203RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"

using namespace wqspcfg;
using C = CSpPTRHitachiKC8203RegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Control, L"DisplayDialog", &C::m_bDisplayDialog, 0,
     L"a dialog is displayed: 0 no; nonzero yes", Saved},
    {key::Control, L"WaitTimeOfDialog", &C::m_dwWaitTimeOfDialog, 30, L"time in s for which the dialog waits", Saved},
    {key::Control, L"IntervalOfDialog", &C::m_dwIntervalOfDialog, 1,  L"interval of the dialog in s", Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpPTRHitachiKC8203RegInfo, CPTRRegInfo, kSettings)
