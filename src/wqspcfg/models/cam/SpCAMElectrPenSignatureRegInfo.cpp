#include "wqspcfg/models/cam/SpCAMElectrPenSignatureRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"

using namespace wqspcfg;
using C = CSpCAMElectrPenSignatureRegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Control, L"CreatWinDisplay", &C::m_bCreatWinDisplay, 0,
     L"a window is created for the display command: 0 no; nonzero yes", Saved},
    Group(Rows<kSignaturePadRows<C>>),
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpCAMElectrPenSignatureRegInfo, CCAMRegInfo, kSettings)
