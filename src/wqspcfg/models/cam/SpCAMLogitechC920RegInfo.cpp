#include "wqspcfg/models/cam/SpCAMLogitechC920RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"

using namespace wqspcfg;
using C = CSpCAMLogitechC920RegInfo;

namespace {

constexpr Key kResize = key::Below(L"ResizePicture");
constexpr Key kWindow = key::Below(L"ResizeDisplayWnd");
constexpr Key kPreview = key::Below(L"PreviewText");

// clang-format off
constexpr Setting kSettings[] = {
    {key::Control, L"PicturePath", &C::m_strPicturePath, L"c:\\camera_data\\",
     L"folder of the pictures", Saved, RefersTo(Reference::Directory)},
    {key::Control, L"ExPicturePath", &C::m_strExPicturePath, L"c:\\camera_data\\",
     L"folder of the pictures of the second camera", Saved, RefersTo(Reference::Directory)},
    {key::Control, L"CameraName", &C::m_strCameraName, L"C920",
     L"name of the camera", Saved},
    {key::Control, L"FirmWare", &C::m_strFirmWare, L"LogitechC920.1.0",
     L"firmware name that is reported", Saved},
    {key::Control, L"CameraFirmWare", &C::m_strCameraFirmWare, L"",
     L"firmware of the camera", Saved},
    {key::Control, L"ExCameraName", &C::m_strExCameraName, L"U3343C",
     L"name of the second camera", Saved},
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
    {key::Control, L"FontFamily", &C::m_strFontFamily, L"Arial",
     L"font family of the text printed on the picture", Saved},
    {key::Control, L"wiSO", &C::m_dwwiSO, 100,
     L"sensitivity of the camera, as an ISO number", Saved},
    {key::Control, L"TakePicWithDis", &C::m_bTakePicWithDis, 0,
     L"a picture is taken with the display running: 0 no; nonzero yes", Saved},
    {key::Control, L"UserRate", &C::m_dwUserRate, 0,
     L"frame rate that is asked of the camera; 0 its own", Saved},
    {key::Control, L"CamPIDVID", &C::m_strCamPIDVID, L"VID_046D&PID_082D",
     L"USB identifier of the camera", Saved},
    {key::Control, L"ExCamPIDVID", &C::m_strExCamPIDVID, L"VID_0C45&PID_6320",
     L"USB identifier of the second camera", Saved},
    {key::Control, L"DestroyWhenNoCreate", &C::m_bDestroyWhenNoCreate, 0,
     L"the preview window is destroyed when it was not created by the display command: 0 no; nonzero yes", Saved},
    {key::Control, L"TakePicDelayTime", &C::m_dwTakePicDelayTime, 0,
     L"delay before a picture is taken, in ms", Saved},
    {key::Control, L"SetDisplayDlgTopMost", &C::m_bSetDisplayDlgTopMost, 1,
     L"the preview window is kept on top: 0 no; nonzero yes", Saved},
    {key::Control, L"ResizePicture", &C::m_bResizePicture, 0,
     L"pictures are resized: 0 no; nonzero yes", Saved},
    {kResize, L"SrcX", &C::m_dwSrcX, 0,
     L"X position of the part of the picture that is kept", Saved},
    {kResize, L"SrcY", &C::m_dwSrcY, 0,
     L"Y position of the part of the picture that is kept", Saved},
    {kWindow, L"dwDispWndX", &C::m_dwDispWndX, 0,
     L"X position of the preview window", Saved},
    {kWindow, L"dwDispWndY", &C::m_dwDispWndY, 0,
     L"Y position of the preview window", Saved},
    {kWindow, L"dwDispWndWidth", &C::m_dwDispWndWidth, 400,
     L"width of the preview window", Saved},
    {kWindow, L"dwDispWndHight", &C::m_dwDispWndHight, 300,
     L"height of the preview window", Saved},
    {key::Capabilities, L"MaxPictures", &C::m_dwMaxPictures, 1000,
     L"maximum number of pictures kept in the folder", Saved},
    {key::Capabilities, L"MaxDataLength", &C::m_dwMaxDataLength, 64,
     L"longest text that can be printed on a picture, in characters", Saved},
    {key::Capabilities, L"CamPos", &C::m_dwCamPos, 1,
     L"position of the camera", Saved},
    {key::Capabilities, L"ExCamPos", &C::m_dwExCamPos, 0,
     L"position of the second camera", Saved},
    {key::Capabilities, L"CreatVideoDlgInDisplay", &C::m_bCreatVideoDlgInDisplay, 1,
     L"the display command creates the video window: 0 no; nonzero yes", Saved},
    {kPreview, L"PreTextXPos", &C::m_dwPreTextXPos, 10,
     L"X position of the text on the preview", Saved},
    {kPreview, L"PreTextYPos", &C::m_dwPreTextYPos, 10,
     L"Y position of the text on the preview", Saved},
    {kPreview, L"TextFontSize", &C::m_dwTextFontSize, 20,
     L"size of the text on the preview", Saved},
    {kPreview, L"PreTextFontName", &C::m_strPreTextFontName, L"\u5fae\u8f6f\u96c5\u9ed1",
     L"font of the text on the preview", Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpCAMLogitechC920RegInfo, CCAMRegInfo, kSettings)
