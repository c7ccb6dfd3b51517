#include "wqspcfg/models/cam/SpCAMEm27585RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"

using namespace wqspcfg;
using C = CSpCAMEm27585RegInfo;

namespace {

constexpr Key kPics = key::Below(L"Pics");
constexpr Key kPosIdMap = key::Below(L"PosIDMap");
constexpr Key kCamera = key::Below(L"Camera");

// clang-format off
constexpr Setting kPerCamera[] = {
    {kPosIdMap, L"Cam_%d", Element<&C::m_strCam>, L"**NoDevice**",
     L"device of the camera at this position", Saved},
    {kPics, L"CurPicCntOfCam%d", Element<&C::m_dwCurPicCntOfCam>, 0,
     L"number of pictures taken at this position", Saved},
};
// clang-format on

// clang-format off
constexpr Setting kSettings[] = {
    {key::Control, L"PicturePath", &C::m_strPicturePath, L"C:\\vexo\\sp\\Config\\sp.data\\Pictures",
     L"folder of the pictures", Saved, RefersTo(Reference::Directory)},
    {key::Control, L"XPos", &C::m_dwXPos, 10,
     L"X position of the text printed on the picture", Saved},
    {key::Control, L"YPos", &C::m_dwYPos, 10,
     L"Y position of the text printed on the picture", Saved},
    {key::Control, L"FontSize", &C::m_dwFontSize, 20,
     L"size of the text printed on the picture", Saved},
    {key::Control, L"VideoWidth", &C::m_dwVideoWidth, 640,
     L"width of the video, in pixels", Saved},
    {key::Control, L"VideoHeight", &C::m_dwVideoHeight, 480,
     L"height of the video, in pixels", Saved},
    {key::Control, L"VideoFrame", &C::m_dwVideoFrame, 15,
     L"frames of the video per second", Saved},
    {key::Control, L"ShowWindowWaitTime", &C::m_dwShowWindowWaitTime, 500,
     L"time to wait until the preview window is shown, in ms", Saved},
    {key::Control, L"MaxDataLength", &C::m_dwMaxDataLength, 64,
     L"longest text that can be printed on a picture, in characters", Saved},
    {key::Control, L"IsShowVideoWindow", &C::m_bIsShowVideoWindow, 1,
     L"the video window is shown: 0 no; nonzero yes", Saved},
    {key::Control, L"IsVDAConfigureCam", &C::m_bIsVDAConfigureCam, 0,
     L"the vendor-dependent application configures the cameras: 0 no; nonzero yes", Saved},
    {key::Control, L"StartVideobyOpen", &C::m_bStartVideobyOpen, 0,
     L"the video starts on open: 0 no; nonzero yes", Saved},
    {key::Control, L"MaxPictures", &C::m_dwMaxPictures, 1000,
     L"maximum number of pictures kept in the folder", Saved},
    {key::Control, L"IsStoreCurPicIndex", &C::m_bIsStoreCurPicIndex, 0,
     L"the index of the current picture is stored: 0 no; nonzero yes", Saved},
    {key::Control, L"CurPicIndex", &C::m_dwCurPicIndex, 0,
     L"index of the current picture", Saved},
    {key::Control, L"dwAvailCamCount", &C::m_dwAvailCamCount, 1,
     L"number of cameras available", Saved, Range(0, 4)},
    Repeat(0, 3, Rows<kPerCamera>),
    {kCamera, L"CamEnabled", &C::m_bCamEnabled, 1, L"the cameras are enabled: 0 no; nonzero yes", Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpCAMEm27585RegInfo, CCAMRegInfo, kSettings)
