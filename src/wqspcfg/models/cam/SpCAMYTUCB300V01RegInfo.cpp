#include "wqspcfg/models/cam/SpCAMYTUCB300V01RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"

using namespace wqspcfg;
using C = CSpCAMYTUCB300V01RegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    Group(Rows<kFaceCameraRows<C>>),
    {key::Control, L"ShowText", &C::m_bShowText, 0,
     L"text is shown on the picture: 0 no; nonzero yes", Saved},
    {key::Control, L"CamID", &C::m_strCamID, L"VID_2C7F&PID_1A20,VID_2C7F&PID_1A90",
     L"USB identifiers: \",\" separates the alternatives of one camera, \";\" the cameras", Saved},
    {key::Control, L"ScreenPath", &C::m_strScreenPath, L"C:\\CAM_DATA\\1.jpg",
     L"path of the picture of the screen", Saved, RefersTo(Reference::File)},
    {key::Control, L"PersonPath", &C::m_strPersonPath, L"C:\\CAM_DATA\\2.jpg",
     L"path of the picture of the person", Saved, RefersTo(Reference::File)},
    {key::Control, L"DeleteFileWhenReset", &C::m_bDeleteFileWhenReset, 0,
     L"a reset deletes the picture files: 0 no; nonzero yes", Saved},
    {key::Control, L"DeleteFilePath", &C::m_strDeleteFilePath, L"C:\\CAM_DATA",
     L"folder of the files that a reset deletes", Saved, RefersTo(Reference::Directory)},
    {key::Control, L"ShowWindow", &C::m_bShowWindow, 1,
     L"the preview window is shown: 0 no; nonzero yes", Saved},
    {key::Control, L"BroadcastEvent", &C::m_bBroadcastEvent, 0,
     L"events are broadcast to all applications: 0 no; nonzero yes", Saved},
    {key::Control, L"ResultPath", &C::m_strResultPath, L"C:\\vexo\\sp\\Config\\sp.data\\CamResult",
     L"folder of the results", Saved, RefersTo(Reference::Directory)},
    {key::Control, L"EventInterval", &C::m_dwEventInterval, 1000,
     L"interval between events, in ms", Saved},
    {key::Control, L"CameraIndex", &C::m_dwCameraIndex, 0,
     L"index of the camera among those connected", Saved},
    {key::Control, L"ImageType", &C::m_dwImageType, 0,
     L"type of the images", Saved},
    {key::Control, L"CreateWindowWhenOpen", &C::m_bCreateWindowWhenOpen, 0,
     L"the preview window is created on open: 0 no; nonzero yes", Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpCAMYTUCB300V01RegInfo, CCAMRegInfo, kSettings)
