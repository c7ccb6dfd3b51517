#include "wqspcfg/models/cam/SpCAMElectrPenSignatureRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"

using namespace wqspcfg;
using C = CSpCAMElectrPenSignatureRegInfo;

namespace {

constexpr Key kSign = key::Below(L"SignAttribute");
constexpr Key kTip = key::Below(L"SignAttribute\\TipStyle");

// clang-format off
constexpr Setting kSettings[] = {
    {key::Control, L"CreatWinDisplay", &C::m_bCreatWinDisplay, 0,        L"a window is created for the display command: 0 no; nonzero yes", Saved},
    {key::Control, L"WinDlgAlpha",     &C::m_dwWinDlgAlpha,    255,      L"opacity of the window: 0 transparent to 255 opaque", Saved, Range(0, 255)},
    {kSign,        L"SignBGColor",     &C::m_dwSignBGColor,    0xFFFFFF, L"background colour of the signature, as an RGB number", Saved},
    {kSign,        L"SignPenColor",    &C::m_dwSignPenColor,   0,        L"pen colour of the signature, as an RGB number", Saved},
    {kSign,        L"SignPenWidth",    &C::m_dwSignPenWidth,   3,        L"pen width of the signature, in pixels", Saved},
    {kTip,         L"PosX",            &C::m_dwPosX,           10,       L"X position of the tip text", Saved},
    {kTip,         L"PosY",            &C::m_dwPosY,           10,       L"Y position of the tip text", Saved},
    {kTip,         L"FontName",        &C::m_strFontName,      L"Arial", L"font of the tip text", Saved},
    {kTip,         L"FontSize",        &C::m_dwFontSize,       20,       L"size of the tip text", Saved},
    {kTip,         L"TextColor",       &C::m_dwTextColor,      0,        L"colour of the tip text, as an RGB number", Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpCAMElectrPenSignatureRegInfo, CCAMRegInfo, kSettings)
