#include "wqspcfg/models/cam/SpCAMCloudWalkRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"

using namespace wqspcfg;
using C = CSpCAMCloudWalkRegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    Group(Rows<kFaceCameraRows<C>>),
    {key::Control, L"CamID", &C::m_strCamID, L"VID_2C7F&PID_C3A1,VID_2C7F&PID_C3B1",
     L"USB identifiers: \",\" separates the alternatives of one camera, \";\" the cameras", Saved},
    {key::Control, L"CameraIndex", &C::m_dwCameraIndex, 0,
     L"index of the camera among those connected", Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpCAMCloudWalkRegInfo, CCAMRegInfo, kSettings)
