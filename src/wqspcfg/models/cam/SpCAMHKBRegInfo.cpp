#include "wqspcfg/models/cam/SpCAMHKBRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"

using namespace wqspcfg;
using C = CSpCAMHKBRegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Control, L"PicturePath", &C::m_strPicturePath, L"C:\\CAM_DATA",
     L"folder of the pictures", Saved, RefersTo(Reference::Directory)},
    {key::Control, L"CameraName", &C::m_strCameraName, L"",
     L"name of the camera", Saved},
    {key::Control, L"VideoWidth", &C::m_dwVideoWidth, 640,
     L"width of the video, in pixels", Saved},
    {key::Control, L"VideoHeight", &C::m_dwVideoHeight, 480,
     L"height of the video, in pixels", Saved},
    {key::Control, L"XPos", &C::m_dwXPos, 10,
     L"X position of the text printed on the picture", Saved},
    {key::Control, L"YPos", &C::m_dwYPos, 10,
     L"Y position of the text printed on the picture", Saved},
    {key::Control, L"FontSize", &C::m_dwFontSize, 20,
     L"size of the text printed on the picture", Saved},
    {key::Control, L"MaxPictures", &C::m_dwMaxPictures, 1000,
     L"maximum number of pictures kept in the folder", Saved},
    {key::Capabilities, L"MaxDataLength", &C::m_dwMaxDataLength, 64,
     L"longest text that can be printed on a picture, in characters", Saved},
    {key::Capabilities, L"HighCamRotateAngle", &C::m_dwHighCamRotateAngle, 0,
     L"rotation of the document camera, in degrees", Saved},
    {key::Capabilities, L"HighCamResolution", &C::m_dwHighCamResolution, 0,
     L"resolution of the document camera", Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpCAMHKBRegInfo, CCAMRegInfo, kSettings)
