#include "wqspcfg/models/cam/SpCAMHiKFaceRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"

using namespace wqspcfg;
using C = CSpCAMHiKFaceRegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Control, L"PicturePath", &C::m_strPicturePath, L"c:\\Camra_HiK\\",
     L"folder of the pictures", Saved, RefersTo(Reference::Directory)},
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
    {key::Control, L"StartFaceDetect", &C::m_bStartFaceDetect, 0,
     L"face detection is started: 0 no; nonzero yes", Saved},
    {key::Control, L"HardWareID", &C::m_strHardWareID, L"VID_0BDA&PID_5842",
     L"USB identifier of the camera", Saved},
    {key::Control, L"StartOSD", &C::m_bStartOSD, 0,
     L"text is shown on the preview: 0 no; nonzero yes", Saved},
    {key::Control, L"OSDContent", &C::m_strOSDContent, L"",
     L"text shown on the preview", Saved},
    {key::Control, L"OSDXPos", &C::m_dwOSDXPos, 10,
     L"X position of the text shown on the preview", Saved},
    {key::Control, L"OSDYPos", &C::m_dwOSDYPos, 10,
     L"Y position of the text shown on the preview", Saved},
    {key::Control, L"TakePictureGetFaceFeatureTimes", &C::m_dwTakePictureGetFaceFeatureTimes, 3,
     L"attempts of the take-picture command to get the face feature", Saved},
    {key::Control, L"MaxPictures", &C::m_dwMaxPictures, 1000,
     L"maximum number of pictures kept in the folder", Saved},
    {key::Capabilities, L"MaxDataLength", &C::m_dwMaxDataLength, 64,
     L"longest text that can be printed on a picture, in characters", Saved},
    {key::Capabilities, L"CamPos", &C::m_dwCamPos, 1,
     L"position of the camera", Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpCAMHiKFaceRegInfo, CCAMRegInfo, kSettings)
