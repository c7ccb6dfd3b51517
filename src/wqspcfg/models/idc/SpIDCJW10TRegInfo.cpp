#include "wqspcfg/models/idc/SpIDCJW10TRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"

using namespace wqspcfg;
using C = CSpIDCJW10TRegInfo;

namespace {

constexpr Key kVideoPos = key::Below(L"VideoPos");

// clang-format off
constexpr Setting kSettings[] = {
    {key::Comm, L"CameraName",  &C::m_strCameraName, L"", L"name of the camera", Saved},
    {key::Comm, L"CamPIDVID",   &C::m_strCamPIDVID,  L"", L"USB product and vendor ID of the camera", Saved},
    {kVideoPos, L"XPos",        &C::m_dwXPos,        0,   L"horizontal position of the video window in pixels", Saved},
    {kVideoPos, L"YPos",        &C::m_dwYPos,        0,   L"vertical position of the video window in pixels", Saved},
    {kVideoPos, L"VideoWidth",  &C::m_dwVideoWidth,  640, L"width of the video window in pixels", Saved},
    {kVideoPos, L"VideoHeight", &C::m_dwVideoHeight, 480, L"height of the video window in pixels", Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpIDCJW10TRegInfo, CIDCRegInfo, kSettings)
