// The window of a signature pad, the pen and the tip text.
#pragma once

#include "wqspcfg/core/settings/Setting.h"

namespace wqspcfg {

struct SignaturePad
{
    DWORD m_dwWinDlgAlpha{};
    DWORD m_dwSignBGColor{};
    DWORD m_dwSignPenColor{};
    DWORD m_dwSignPenWidth{};
    DWORD m_dwPosX{};
    DWORD m_dwPosY{};
    CString m_strFontName;
    DWORD m_dwFontSize{};
    DWORD m_dwTextColor{};
};

inline constexpr Key kSign = key::Below(L"SignAttribute");
inline constexpr Key kTip = key::Below(L"SignAttribute\\TipStyle");

// clang-format off
template <class C>
inline constexpr Setting kSignaturePadRows[] = {
    {key::Control, L"WinDlgAlpha", Of<C, &SignaturePad::m_dwWinDlgAlpha>, 255,
     L"opacity of the window: 0 transparent to 255 opaque", Saved, Range(0, 255)},
    {kSign, L"SignBGColor", Of<C, &SignaturePad::m_dwSignBGColor>, 0xFFFFFF,
     L"background colour of the signature, as an RGB number", Saved},
    {kSign, L"SignPenColor", Of<C, &SignaturePad::m_dwSignPenColor>, 0,
     L"pen colour of the signature, as an RGB number", Saved},
    {kSign, L"SignPenWidth", Of<C, &SignaturePad::m_dwSignPenWidth>, 3,
     L"pen width of the signature, in pixels", Saved},
    {kTip, L"PosX",      Of<C, &SignaturePad::m_dwPosX>,      10, L"X position of the tip text", Saved},
    {kTip, L"PosY",      Of<C, &SignaturePad::m_dwPosY>,      10, L"Y position of the tip text", Saved},
    {kTip, L"FontName",  Of<C, &SignaturePad::m_strFontName>, L"Arial", L"font of the tip text", Saved},
    {kTip, L"FontSize",  Of<C, &SignaturePad::m_dwFontSize>,  20, L"size of the tip text", Saved},
    {kTip, L"TextColor", Of<C, &SignaturePad::m_dwTextColor>, 0, L"colour of the tip text, as an RGB number", Saved},
};
// clang-format on

} // namespace wqspcfg
