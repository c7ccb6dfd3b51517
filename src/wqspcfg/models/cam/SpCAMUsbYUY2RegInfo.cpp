#include "wqspcfg/models/cam/SpCAMUsbYUY2RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"

using namespace wqspcfg;
using C = CSpCAMUsbYUY2RegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Control, L"PicturePath", &C::m_strPicturePath, L"c:\\camra_data\\",
     L"folder of the pictures", Saved, RefersTo(Reference::Directory)},
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
    {key::Control, L"TakePicWithDis", &C::m_bTakePicWithDis, 0,
     L"a picture is taken with the display running: 0 no; nonzero yes", Saved},
    {key::Control, L"UserRate", &C::m_dwUserRate, 0,
     L"frame rate that is asked of the camera; 0 its own", Saved},
    {key::Control, L"MaxPictures", &C::m_dwMaxPictures, 1000,
     L"maximum number of pictures kept in the folder", Saved},
    {key::Capabilities, L"MaxDataLength", &C::m_dwMaxDataLength, 64,
     L"longest text that can be printed on a picture, in characters", Saved},
    {key::Capabilities, L"CamPos", &C::m_dwCamPos, 1,
     L"position of the camera", Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpCAMUsbYUY2RegInfo, CCAMRegInfo, kSettings)
