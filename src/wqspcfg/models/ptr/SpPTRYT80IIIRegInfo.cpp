#include "wqspcfg/models/ptr/SpPTRYT80IIIRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/PTR.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using namespace wqspcfg::meaning;
using C = CSpPTRYT80IIIRegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Comm, L"Port", &C::m_dwPort, 1,
     kPort, Saved, RefersTo(Reference::SerialPort)},
    {key::Comm,    L"BaudRate",   &C::m_dwBaudRate,   9600, kBaudRate, Saved},
    {key::Control, L"CutMode",    &C::m_dwCutMode,    0,    printer::kCutMode, Saved},
    {key::Control, L"CutPos",     &C::m_dwCutPos,     0,    printer::kCutPos, Saved},
    {key::Control, L"MaxRetract", &C::m_dwMaxRetract, 10,   printer::kMaxRetract, Saved},
    {key::Control, L"HIGHRetract", &C::m_dwHIGHRetract, 9,
     L"count at which the retract bin is nearly full", Saved},
    {key::Control, L"IsSendMediaTakenEvent", &C::m_bIsSendMediaTakenEvent, 0,
     printer::kSendMediaTakenEvent, Saved},
    {key::Control, L"PTRRetractCount", &C::m_dwPTRRetractCount, 0,
     L"number of receipts retracted", Saved},
    {key::Control, L"FieldPosYChange", &C::m_dwFieldPosYChange, 0,         printer::kFieldPosYChange, Saved},
    {key::Control, L"FixFontSize",     &C::m_bFixFontSize,      0,         printer::kUseFixFontSize, Saved},
    {key::Control, L"MustBeBolt",      &C::m_bMustBeBolt,       0,         printer::kMustBeBold, Saved},
    {key::Control, L"FontName",        &C::m_strFontName,       L"SimSun", printer::kFontName, Saved},
    {key::Control, L"FormWidth",       &C::m_dwFormWidth,       80,        printer::kFormWidth, Saved},
    {key::Control, L"FormHeight",      &C::m_dwFormHeight,      297,       printer::kFormHeight, Saved},
    {key::Control, L"FontSize",        &C::m_dwFontSize,        12,        printer::kFontSize, Saved},
    {key::Control, L"LineSpace",       &C::m_dwLineSpace,       30,        printer::kLineSpace, Saved},
    {key::Control, L"WordSpace",       &C::m_dwWordSpace,       0,         printer::kWordSpace, Saved},
    {key::Control, L"WordWidth", &C::m_dwWordWidth, 0,
     L"width of characters; 0 the font's own", Saved},
    {key::Control, L"WhitePaperSize", &C::m_dwWhitePaperSize, 0, printer::kNotDocumented, Saved},
    {key::Control, L"IsAllEject", &C::m_bIsAllEject, 0,
     L"the paper is ejected in full: 0 no; nonzero yes", Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpPTRYT80IIIRegInfo, CPTRRegInfo, kSettings)
