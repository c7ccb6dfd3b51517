#include "wqspcfg/models/cam/SpCAMCloudWalkRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"

using namespace wqspcfg;
using C = CSpCAMCloudWalkRegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Control, L"TimeOut",     &C::m_dwTimeOut,     30,                                     L"time-out of a capture, in seconds", Saved},
    {key::Control, L"MaxPictures", &C::m_dwMaxPictures, 1000,                                   L"maximum number of pictures kept in the folder", Saved},
    {key::Control, L"FontColor",   &C::m_dwFontColor,   0xFFFFFF,                               L"colour of the text printed on the picture, as an RGB number", Saved},
    {key::Control, L"FontSize",    &C::m_dwFontSize,    20,                                     L"size of the text printed on the picture", Saved},
    {key::Control, L"PointX",      &C::m_dwPointX,      10,                                     L"X position of the text printed on the picture", Saved},
    {key::Control, L"PointY",      &C::m_dwPointY,      10,                                     L"Y position of the text printed on the picture", Saved},
    {key::Control, L"FMVersion",   &C::m_strFMVersion,  L"V1.01",                               L"firmware version that is reported", Saved},
    {key::Control, L"CamID",       &C::m_strCamID,      L"VID_2C7F&PID_C3A1,VID_2C7F&PID_C3B1", L"USB identifiers: \",\" separates the alternatives of one camera, \";\" the cameras", Saved},
    {key::Control, L"CameraIndex", &C::m_dwCameraIndex, 0,                                      L"index of the camera among those connected", Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpCAMCloudWalkRegInfo, CCAMRegInfo, kSettings)
