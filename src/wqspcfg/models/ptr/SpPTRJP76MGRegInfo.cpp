#include "wqspcfg/models/ptr/SpPTRJP76MGRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/PTR.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using namespace wqspcfg::meaning;
using C = CSpPTRJP76MGRegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Device, L"LineHeight",     &C::m_dwLineHeight,    30,   printer::kLineSpace, Saved},
    {key::Device, L"WordSpace",      &C::m_dwWordSpace,     0,    printer::kWordSpace, Saved},
    {key::Device, L"Underline",      &C::m_bUnderline,      0,    printer::kUnderline, Saved},
    {key::Device, L"DoubleHeight",   &C::m_bDoubleHeight,   0,    printer::kDoubleHeight, Saved},
    {key::Device, L"DoubleWidth",    &C::m_bDoubleWidth,    0,    printer::kDoubleWidth, Saved},
    {key::Comm,   L"Port",           &C::m_dwPort,          1,    kPort, Saved, RefersTo(Reference::SerialPort)},
    {key::Comm,   L"BaudRate",       &C::m_dwBaudRate,      9600, kBaudRate, Saved},
    {key::Device, L"MustBeWordWrap", &C::m_bMustBeWordWrap, 0,    printer::kMustBeWordWrap, Saved},
    {key::Device, L"OverFlowTerminate", &C::m_bOverFlowTerminate, 0,
     L"printing ends when data overflow: 0 no; nonzero yes", Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpPTRJP76MGRegInfo, CPTRRegInfo, kSettings)
