#include "wqspcfg/models/ptr/SpPTRTFaceColDetectRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"

using namespace wqspcfg;
using C = CSpPTRTFaceColDetectRegInfo;

namespace {

constexpr Key kDisplay = key::Below(L"Display");

// clang-format off
constexpr Setting kSettings[] = {
    {key::Control, L"CamName", &C::m_strCamName, L"", L"name of the camera; empty the first one found", Saved},
    {key::Control, L"PicFile", &C::m_strPicFile, L"", L"path of the picture file", Saved, RefersTo(Reference::File)},
    {key::Control, L"CamPIDVID", &C::m_strCamPIDVID, L"",
     L"USB identifier of the camera, VID_xxxx&PID_xxxx in hexadecimal digits; empty any", Saved},
    {kDisplay, L"Width",  &C::m_dwWidth,  640, L"width of the picture in pixels", Saved},
    {kDisplay, L"Height", &C::m_dwHeight, 480, L"height of the picture in pixels", Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpPTRTFaceColDetectRegInfo, CPTRRegInfo, kSettings)
