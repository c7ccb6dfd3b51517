#include "wqspcfg/models/cam/SpCAMPrdYGBRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"

using namespace wqspcfg;
using C = CSpCAMPrdYGBRegInfo;

namespace {

constexpr Key kSign = key::Below(L"SignAttribute");

// clang-format off
constexpr Setting kSettings[] = {
    {key::Device, L"DN.YGB_LED", &C::m_strDN_YGB_LED, L"",
     L"vendor device name of the signature pad", Saved},
    {key::Device, L"DevName", &C::m_strDevName, L"",
     L"name of the device", Saved},
    {kSign, L"SignTxtDataPath", &C::m_strSignTxtDataPath, L"C:\\CAM_DATA\\sign.txt",
     L"path of the signature data as text", Saved},
    {kSign, L"SignPicPath", &C::m_strSignPicPath, L"C:\\CAM_DATA\\sign.png",
     L"path of the signature as a picture", Saved},
    {key::Control, L"BGTextData", &C::m_strBGTextData, L"",
     L"text in the background of the signature", Saved},
    {key::Control, L"CreatWinDisPlay", &C::m_bCreatWinDisPlay, 0,
     L"a window is created for the display command: 0 no; nonzero yes", Saved},
    {key::Control, L"WinDlgAlpha", &C::m_dwWinDlgAlpha, 255,
     L"opacity of the window: 0 transparent to 255 opaque", Saved, Range(0, 255)},
    {kSign, L"SignBGColor", &C::m_dwSignBGColor, 0xFFFFFF,
     L"background colour of the signature, as an RGB number", Saved},
    {kSign, L"SignPenColor", &C::m_dwSignPenColor, 0,
     L"pen colour of the signature, as an RGB number", Saved},
    {kSign, L"SignPenWidth", &C::m_dwSignPenWidth, 3,
     L"pen width of the signature, in pixels", Saved},
    {kSign, L"PosX", &C::m_dwPosX, 10,
     L"X position of the tip text", Saved},
    {kSign, L"PosY", &C::m_dwPosY, 10,
     L"Y position of the tip text", Saved},
    {kSign, L"FontName", &C::m_strFontName, L"Arial",
     L"font of the tip text", Saved},
    {kSign, L"FontSize", &C::m_dwFontSize, 20,
     L"size of the tip text", Saved},
    {kSign, L"TextColor", &C::m_dwTextColor, 0,
     L"colour of the tip text, as an RGB number", Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpCAMPrdYGBRegInfo, CCAMRegInfo, kSettings)
