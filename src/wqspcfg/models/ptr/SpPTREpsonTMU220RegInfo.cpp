#include "wqspcfg/models/ptr/SpPTREpsonTMU220RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/PTR.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using C = CSpPTREpsonTMU220RegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Comm,    L"Port",             &C::m_dwPort,             1,    meaning::kPort, Saved},
    {key::Comm,    L"BaudRate",         &C::m_dwBaudRate,         9600, meaning::kBaudRate, Saved},
    {key::Control, L"IsUseBlackMark",   &C::m_bIsUseBlackMark,    0,    meaning::printer::kIsUseBlackMark, Saved},
    {key::Control, L"RawDataStyle",     &C::m_dwRawDataStyle,     0,    meaning::printer::kRawDataStyle, Saved},
    {key::Control, L"LineSpace",        &C::m_dwLineSpace,        30,   meaning::printer::kLineSpace, Saved},
    {key::Control, L"LeftMargin",       &C::m_dwLeftMargin,       0,    meaning::printer::kLeftMargin, Saved},
    {key::Control, L"CutPosition",      &C::m_dwCutPosition,      0,    meaning::printer::kCutPos, Saved},
    {key::Control, L"PrintPos",         &C::m_dwPrintPos,         0,    meaning::printer::kPrintPos, Saved},
    {key::Control, L"EnCharSpace",      &C::m_dwEnCharSpace,      0,    meaning::printer::kEnCharSpace, Saved},
    {key::Control, L"ChCharSpaceLeft",  &C::m_dwChCharSpaceLeft,  0,    meaning::printer::kChCharSpaceLeft, Saved},
    {key::Control, L"ChCharSpaceRight", &C::m_dwChCharSpaceRight, 0,    meaning::printer::kChCharSpaceRight, Saved},
    {key::Control, L"PrintTimeOut",     &C::m_dwPrintTimeOut,     30,   meaning::printer::kPrintTimeOut, Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpPTREpsonTMU220RegInfo, CPTRRegInfo, kSettings)
