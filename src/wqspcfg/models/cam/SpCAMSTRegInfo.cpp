#include "wqspcfg/models/cam/SpCAMSTRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"

using namespace wqspcfg;
using C = CSpCAMSTRegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    Group(Rows<kFaceCameraRows<C>>),
    {key::Control, L"ShowText", &C::m_bShowText, 0,
     L"text is shown on the picture: 0 no; nonzero yes", Saved},
    {key::Control, L"CamID", &C::m_strCamID, L"VID_2C7F&PID_1A20,VID_2C7F&PID_1A90;VID_C168&PID_C098,VID_D168&PID_D098",
     L"USB identifiers: \",\" separates the alternatives of one camera, \";\" the cameras", Saved},
    {key::Control, L"CameraIndex", &C::m_dwCameraIndex, 0, L"index of the camera among those connected", Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpCAMSTRegInfo, CCAMRegInfo, kSettings)
