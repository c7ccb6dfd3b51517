#include "wqspcfg/models/cam/SpCAMHandInputRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"

using namespace wqspcfg;
using C = CSpCAMHandInputRegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Control, L"PenWidth",  &C::m_dwPenWidth,  3, L"width of the pen, in pixels", Saved},
    {key::Control, L"PenColorR", &C::m_dwPenColorR, 0, L"red part of the pen colour", Saved, Range(0, 255)},
    {key::Control, L"PenColorG", &C::m_dwPenColorG, 0, L"green part of the pen colour", Saved, Range(0, 255)},
    {key::Control, L"PenColorB", &C::m_dwPenColorB, 0, L"blue part of the pen colour", Saved, Range(0, 255)},
    {key::Control, L"PenColor",  &C::m_dwPenColor,  0, L"pen colour, as an RGB number", Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpCAMHandInputRegInfo, CCAMRegInfo, kSettings)
