#include "wqspcfg/models/cam/SpCAMPrdBNCCameraRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"

using namespace wqspcfg;
using C = CSpCAMPrdBNCCameraRegInfo;

namespace {

constexpr Key kWindow = key::Below(L"ResizeDisplayWnd");
constexpr Key kPicText = key::Below(L"PictureText");
constexpr Key kLiveness = key::Below(L"Liveness");
constexpr Key kCameras = key::Below(L"Cameras");

// clang-format off
constexpr Setting kSettings[] = {
    {key::Device, L"DN.CAM_MNC.PERSON", &C::m_strDN_CAM_MNC_PERSON, L"",
     L"vendor device name of the camera that faces the person", Saved},
    {key::Device, L"DN.CAM_BNC.FACE", &C::m_strDN_CAM_BNC_FACE, L"",
     L"vendor device name of the binocular face camera", Saved},
    {key::Control, L"ScreenPicPath", &C::m_strScreenPicPath, L"C:\\CAM_DATA\\1.jpg",
     L"path of the picture of the screen", Saved, RefersTo(Reference::File)},
    {key::Control, L"PersonPicPath", &C::m_strPersonPicPath, L"C:\\CAM_DATA\\2.jpg",
     L"path of the picture of the person", Saved, RefersTo(Reference::File)},
    {key::Control, L"MonocularPicPath", &C::m_strMonocularPicPath, L"C:\\CAMERA_DATA\\0.jpg",
     L"path of the picture of the monocular camera", Saved, RefersTo(Reference::File)},
    {key::Control, L"DeleteFileWhenReset", &C::m_bDeleteFileWhenReset, 0,
     L"a reset deletes the picture files: 0 no; nonzero yes", Saved},
    {key::Control, L"DeleteFilePath", &C::m_strDeleteFilePath, L"C:\\CAM_DATA",
     L"folder of the files that a reset deletes", Saved, RefersTo(Reference::Directory)},
    {key::Control, L"ResultPath", &C::m_strResultPath, L"C:\\vexo\\sp\\Config\\sp.data\\CamResult",
     L"folder of the results", Saved, RefersTo(Reference::Directory)},
    {key::Control, L"SupportMonocularCamera", &C::m_bSupportMonocularCamera, 0,
     L"a monocular camera is present: 0 no; nonzero yes", Saved},
    {key::Control, L"CreateWindowWhenOpen", &C::m_bCreateWindowWhenOpen, 0,
     L"the preview window is created on open: 0 no; nonzero yes", Saved},
    {kLiveness, L"BroadcastEvent", &C::m_bBroadcastEvent, 0,
     L"events are broadcast to all applications: 0 no; nonzero yes", Saved},
    {kLiveness, L"EventInterval", &C::m_dwEventInterval, 1000,
     L"interval between events, in ms", Saved},
    {kLiveness, L"LivenessTimeOut", &C::m_dwLivenessTimeOut, 30,
     L"time-out of the liveness check, in seconds", Saved},
    {kPicText, L"PicTextXPos", &C::m_dwPicTextXPos, 10,
     L"X position of the text printed on the picture", Saved},
    {kPicText, L"PicTextYPos", &C::m_dwPicTextYPos, 10,
     L"Y position of the text printed on the picture", Saved},
    {kPicText, L"PicTextFontName", &C::m_strPicTextFontName, L"Arial",
     L"font of the text printed on the picture", Saved},
    {kPicText, L"wiSO", &C::m_dwwiSO, 100,
     L"sensitivity of the camera, as an ISO number", Saved},
    {kPicText, L"PicTextFontColor", &C::m_dwPicTextFontColor, 0xFFFFFF,
     L"colour of the text printed on the picture, as an RGB number", Saved},
    {kPicText, L"PicTextFontSize", &C::m_dwPicTextFontSize, 20,
     L"size of the text printed on the picture", Saved},
    {kWindow, L"MNCDispWndWidth", &C::m_dwMNCDispWndWidth, 400,
     L"width of the preview window of the monocular camera", Saved},
    {kWindow, L"MNCDispWndHight", &C::m_dwMNCDispWndHight, 300,
     L"height of the preview window of the monocular camera", Saved},
    {kCameras, L"MaxPictures", &C::m_dwMaxPictures, 1000,
     L"maximum number of pictures kept in the folder", Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpCAMPrdBNCCameraRegInfo, CCAMRegInfo, kSettings)
