#include "wqspcfg/models/ptr/SpPTRCLPos763RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/PTR.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using namespace wqspcfg::meaning;
using C = CSpPTRCLPos763RegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Comm,    L"Port",         &C::m_dwPort,         1,    kPort, Saved, RefersTo(Reference::SerialPort)},
    {key::Comm,    L"BaudRate",     &C::m_dwBaudRate,     9600, kBaudRate, Saved},
    {key::Control, L"CutMode",      &C::m_dwCutMode,      0,    printer::kCutMode, Saved},
    {key::Control, L"CutPos",       &C::m_dwCutPos,       0,    printer::kCutPos, Saved},
    {key::Control, L"RawDataStyle", &C::m_dwRawDataStyle, 0,    printer::kRawDataStyle, Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpPTRCLPos763RegInfo, CPTRRegInfo, kSettings)
