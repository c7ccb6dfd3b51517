#include "wqspcfg/classes/CHKRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"

using namespace wqspcfg;
using C = CCHKRegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Control, L"SendMediaInsertedEvent", &C::m_bSendMediaInsertedEvent, 0,
     L"post the media-inserted event when a fingerprint is taken: 0 no; nonzero yes", Saved},
};
// clang-format on

} // namespace

WQSPCFG_CLASS_SETTINGS(CCHKRegInfo, L"CHK", kSettings)
