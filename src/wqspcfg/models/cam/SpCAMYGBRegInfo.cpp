#include "wqspcfg/models/cam/SpCAMYGBRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"

using namespace wqspcfg;
using C = CSpCAMYGBRegInfo;

namespace {

constexpr Key kSign = key::Below(L"SignAttribute");
constexpr Key kTip = key::Below(L"SignAttribute\\TipStyle");

// clang-format off
constexpr Setting kSettings[] = {
    {key::Control, L"PicturePath",     &C::m_strPicturePath,   L"C:\\CAM_DATA", L"folder of the pictures", Saved},
    {key::Control, L"LoadOneMoreKey",  &C::m_bLoadOneMoreKey,  0,               L"one more key is loaded: 0 no; nonzero yes", Saved},
    {key::Control, L"CreatWinDisPlay", &C::m_bCreatWinDisPlay, 0,               L"a window is created for the display command: 0 no; nonzero yes", Saved},
    {key::Control, L"WinDlgAlpha",     &C::m_dwWinDlgAlpha,    255,             L"opacity of the window: 0 transparent to 255 opaque", Saved, Range(0, 255)},
    {kSign,        L"SignBGColor",     &C::m_dwSignBGColor,    0xFFFFFF,        L"background colour of the signature, as an RGB number", Saved},
    {kSign,        L"SignPenColor",    &C::m_dwSignPenColor,   0,               L"pen colour of the signature, as an RGB number", Saved},
    {kSign,        L"SignPenWidth",    &C::m_dwSignPenWidth,   3,               L"pen width of the signature, in pixels", Saved},
    {kTip,         L"PosX",            &C::m_dwPosX,           10,              L"X position of the tip text", Saved},
    {kTip,         L"PosY",            &C::m_dwPosY,           10,              L"Y position of the tip text", Saved},
    {kTip,         L"FontName",        &C::m_strFontName,      L"Arial",        L"font of the tip text", Saved},
    {kTip,         L"FontSize",        &C::m_dwFontSize,       20,              L"size of the tip text", Saved},
    {kTip,         L"TextColor",       &C::m_dwTextColor,      0,               L"colour of the tip text, as an RGB number", Saved},
    {key::Control, L"DevType",         &C::m_dwDevType,        0,               L"device type", Saved},
    {key::Control, L"BGTextData",      &C::m_strBGTextData,    L"",             L"text in the background of the signature", Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpCAMYGBRegInfo, CCAMRegInfo, kSettings)
