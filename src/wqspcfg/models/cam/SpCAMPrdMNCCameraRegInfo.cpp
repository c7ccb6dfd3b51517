#include "wqspcfg/models/cam/SpCAMPrdMNCCameraRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"

using namespace wqspcfg;
using C = CSpCAMPrdMNCCameraRegInfo;

namespace {

constexpr Key kResize = key::Below(L"ResizePicture");
constexpr Key kWindow = key::Below(L"ResizeDisplayWnd");
constexpr Key kPreview = key::Below(L"PreviewText");
constexpr Key kPicText = key::Below(L"PictureText");

constexpr Key kPosition = key::Below(L"CAPABILITIES\\%s");
constexpr const wchar_t* kPositions[] = {L"ROOM", L"PERSON", L"EXITSLOT", L"EXTRA"};

// clang-format off
constexpr Setting kPerPosition[] = {
    {kPosition, L"WFS_CAM_AVAILABLE", Element<&C::m_arPosition, &C::tagCameraPosition::bAvailable>,
     0, L"a camera is available at this position: 0 no; nonzero yes", Saved, Label(L"%s.WFS_CAM_AVAILABLE")},
    {key::Device, L"DN.CAM_MNC.%s", Element<&C::m_arPosition, &C::tagCameraPosition::strDeviceName>,
     L"", L"vendor device name of the camera at this position", Saved},
    {kPosition, L"PicturePath", Element<&C::m_arPosition, &C::tagCameraPosition::strPicturePath>,
    L"C:\\CAM_DATA", L"folder of the pictures taken at this position", Saved, Label(L"%s.PicturePath"),
     RefersTo(Reference::Directory)},
    {kPosition, L"PictureNumber", Element<&C::m_arPosition, &C::tagCameraPosition::dwPictureNumber>,
     0, L"number of pictures taken at this position", Saved, Label(L"%s.PictureNumber")},
};
// clang-format on

// clang-format off
constexpr Setting kSettings[] = {
    {key::Control, L"TakePicWithDis", &C::m_bTakePicWithDis, 0,
     L"a picture is taken with the display running: 0 no; nonzero yes", Saved},
    {key::Control, L"TakePicDelayTime", &C::m_dwTakePicDelayTime, 0,
     L"delay before a picture is taken, in ms", Saved},
    {key::Control, L"UseAPResolution", &C::m_bUseAPResolution, 0,
     L"the resolution that the application asks for is used: 0 no; nonzero yes", Saved},
    {key::Control, L"DestroyWhenNoCreate", &C::m_bDestroyWhenNoCreate, 0,
     L"the preview window is destroyed when it was not created by the display command: 0 no; nonzero yes", Saved},
    {key::Control, L"SetDisplayDlgTopMost", &C::m_bSetDisplayDlgTopMost, 1,
     L"the preview window is kept on top: 0 no; nonzero yes", Saved},
    {key::Control, L"CamDataToPath", &C::m_bCamDataToPath, 0,
     L"camera data are saved to the path given: 0 no; nonzero yes", Saved},
    {key::Control, L"StartFaceDetect", &C::m_bStartFaceDetect, 0,
     L"face detection is started: 0 no; nonzero yes", Saved},
    {key::Control, L"StartPreviewText", &C::m_bStartPreviewText, 0,
     L"text is shown on the preview: 0 no; nonzero yes", Saved},
    {key::Control, L"TakePictureGetFaceFeatureTimes", &C::m_dwTakePictureGetFaceFeatureTimes, 3,
     L"attempts of the take-picture command to get the face feature", Saved},
    {key::Control, L"CreatVideoDlgInDisplay", &C::m_bCreatVideoDlgInDisplay, 1,
     L"the display command creates the video window: 0 no; nonzero yes", Saved},
    {key::Control, L"StartVideobyOpen", &C::m_bStartVideobyOpen, 0,
     L"the video starts on open: 0 no; nonzero yes", Saved},
    {key::Control, L"IsStoreCurPicIndex", &C::m_bIsStoreCurPicIndex, 0,
     L"the index of the current picture is stored: 0 no; nonzero yes", Saved},
    {key::Control, L"ResizePicture", &C::m_bResizePicture, 0,
     L"pictures are resized: 0 no; nonzero yes", Saved},
    {kResize, L"ResizeSrcX", &C::m_dwResizeSrcX, 0,
     L"X position of the part of the picture that is kept", Saved},
    {kResize, L"ResizeSrcY", &C::m_dwResizeSrcY, 0,
     L"Y position of the part of the picture that is kept", Saved},
    {kPicText, L"PicTextXPos", &C::m_dwPicTextXPos, 10,
     L"X position of the text printed on the picture", Saved},
    {kPicText, L"PicTextYPos", &C::m_dwPicTextYPos, 10,
     L"Y position of the text printed on the picture", Saved},
    {kPicText, L"PicTextFontSize", &C::m_dwPicTextFontSize, 20,
     L"size of the text printed on the picture", Saved},
    {kPicText, L"PicTextFontName", &C::m_strPicTextFontName, L"Arial",
     L"font of the text printed on the picture", Saved},
    {kPicText, L"wiSO", &C::m_dwwiSO, 100,
     L"sensitivity of the camera, as an ISO number", Saved},
    {kPicText, L"PicTextFontColor", &C::m_dwPicTextFontColor, 0xFFFFFF,
     L"colour of the text printed on the picture, as an RGB number", Saved},
    {kPicText, L"MaxDataLength", &C::m_dwMaxDataLength, 64,
     L"longest text that can be printed on a picture, in characters", Saved},
    {kWindow, L"DispResolutionWidth", &C::m_dwDispResolutionWidth, 640,
     L"width of the preview resolution, in pixels", Saved},
    {kWindow, L"DispResolutionHeight", &C::m_dwDispResolutionHeight, 480,
     L"height of the preview resolution, in pixels", Saved},
    {kWindow, L"DispWndX", &C::m_dwDispWndX, 0,
     L"X position of the preview window", Saved},
    {kWindow, L"DispWndY", &C::m_dwDispWndY, 0,
     L"Y position of the preview window", Saved},
    {kWindow, L"DispWndWidth", &C::m_dwDispWndWidth, 400,
     L"width of the preview window", Saved},
    {kWindow, L"DispWndHeight", &C::m_dwDispWndHeight, 300,
     L"height of the preview window", Saved},
    {kWindow, L"VideoFrame", &C::m_dwVideoFrame, 15,
     L"frames of the video per second", Saved},
    {kPreview, L"PreTextXPos", &C::m_dwPreTextXPos, 10,
     L"X position of the text on the preview", Saved},
    {kPreview, L"PreTextYPos", &C::m_dwPreTextYPos, 10,
     L"Y position of the text on the preview", Saved},
    {kPreview, L"PreTextFontSize", &C::m_dwPreTextFontSize, 20,
     L"size of the text on the preview", Saved},
    {kPreview, L"PreTextFontColor", &C::m_dwPreTextFontColor, 0xFFFFFF,
     L"colour of the text on the preview, as an RGB number", Saved},
    {kPreview, L"PreTextFontName", &C::m_strPreTextFontName, L"\u5fae\u8f6f\u96c5\u9ed1",
     L"font of the text on the preview", Saved},
    {key::Capabilities, L"MaxPictures", &C::m_dwMaxPictures, 1000,
     L"maximum number of pictures kept in the folder", Saved},
    Repeat(kPositions, Rows<kPerPosition>),
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpCAMPrdMNCCameraRegInfo, CCAMRegInfo, kSettings)
