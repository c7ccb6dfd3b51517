#include "wqspcfg/classes/CAMRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"

using namespace wqspcfg;
using C = CCAMRegInfo;

namespace {

constexpr Key kCamera = key::Below(L"Camera");

// clang-format off
constexpr Setting kSettings[] = {
    {kCamera, L"RoomHigh",     &C::m_dwRoomHigh,     0, L"room height"},
    {kCamera, L"PersonHigh",   &C::m_dwPersonHigh,   0, L"person height"},
    {kCamera, L"ExtraHigh",    &C::m_dwExtraHigh,    0, L"extension height"},
    {kCamera, L"ExitSlotHigh", &C::m_dwExitSlotHigh, 0, L"height of the exit slot"},
    {kCamera, L"HighCameraHigh", &C::m_dwHighCameraHigh, 0,
     L"threshold at which the picture store of the document camera counts as nearly full"},
    {key::Control, L"ApID", &C::m_dwApID, 0,
     L"application profile: 0 Tarno standard; 1 to 5 the profiles of particular bank applications", Saved, Range(0, 5)},
    {kCamera, L"PosX", &C::m_dwPosX, 0,
     L"preview window X coordinate", Saved},
    {kCamera, L"PosY", &C::m_dwPosY, 0,
     L"preview window Y coordinate", Saved},
    {kCamera, L"PosW", &C::m_dwPosW, 400, L"preview window width", Saved},
    {kCamera, L"PosH", &C::m_dwPosH, 300,
     L"preview window height", Saved},
    {key::Control, L"CheckDisplayHwnd", &C::m_bCheckDisplayHwnd, 1,
     L"the display command checks its window handle parameter: 0 no; nonzero yes", Saved},
    {key::Control, L"m_bRetInvaildWithTextLong", &C::m_bRetInvaildWithTextLong, 0,
     L"a picture whose overlay text exceeds the device capability is answered with invalid data: 0 no; nonzero yes"},
    {key::Control, L"CheckPicPath", &C::m_bCheckPicPath, 1,
     L"the take-picture command checks its path parameter: 0 no; nonzero yes", Saved},
    {key::Control, L"NoCheckCamPar", &C::m_dwNoCheckCamPar, 0,
     L"the take-picture input parameters are not checked: 0 they are; nonzero they are not", Saved},
    {key::Control, L"SignMemory", &C::m_dwSignMemory, 102400,
     L"size of the signature memory"},
    {key::Control, L"HaveOutWhenTakePic", &C::m_bHaveOutWhenTakePic, 0,
     L"the take-picture command returns output data: 0 no; nonzero yes", Saved},
    {key::Control, L"FirstCheckCameraST", &C::m_bFirstCheckCameraST, 0,
     L"during dynamic status checks the camera status is checked first: 0 no; nonzero yes", Saved},
};
// clang-format on

constexpr const wchar_t* kSaved[] = {L"ApID",          L"PosX",
                                     L"PosY",          L"PosW",
                                     L"PosH",          L"CheckDisplayHwnd",
                                     L"CheckPicPath",  L"FirstCheckCameraST",
                                     L"NoCheckCamPar", L"HaveOutWhenTakePic"};
constexpr auto kSaveOrder = SaveOrder<kSettings, kSaved>;

} // namespace

WQSPCFG_CLASS_SETTINGS(CCAMRegInfo, L"CAM", kSettings, kSaveOrder, {}, nullptr, false)
