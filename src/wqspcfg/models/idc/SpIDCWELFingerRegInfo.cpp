#include "wqspcfg/models/idc/SpIDCWELFingerRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using C = CSpIDCWELFingerRegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Control, L"DevType", &C::m_dwDevType, 0, meaning::kNotDocumented, Saved},
    {key::Control, L"FingerPicDir", &C::m_strFingerPicDir, L"",
     L"directory of the fingerprint pictures", Saved, RefersTo(Reference::Directory)},
    {key::Control, L"GetFingerFetureTimeOut", &C::m_dwGetFingerFetureTimeOut, 30,
     L"time-out in seconds for capturing a fingerprint feature", Saved},
    {key::Control, L"GetFingerTemplateTimeOut", &C::m_dwGetFingerTemplateTimeOut, 30,
     L"time-out in seconds for capturing a fingerprint template", Saved},
    {key::Control, L"T4PicDir", &C::m_strT4PicDir, L"",
     L"directory of the T4 pictures", Saved, RefersTo(Reference::Directory)},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpIDCWELFingerRegInfo, CIDCRegInfo, kSettings)
