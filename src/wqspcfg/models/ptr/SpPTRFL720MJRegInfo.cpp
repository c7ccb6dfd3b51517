#include "wqspcfg/models/ptr/SpPTRFL720MJRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using namespace wqspcfg::meaning;
using C = CSpPTRFL720MJRegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Device, L"IntervalofTemplate", &C::m_dwIntervalofTemplate, 0,
     L"interval of template capture in s: 0 the next capture starts only after the finger has been lifted", Saved},
    {key::Device, L"DevPos",   &C::m_dwDevPos,   0,    L"position of the device; 0 the first", Saved},
    {key::Device, L"Port",     &C::m_dwPort,     1,    kPort, Saved, RefersTo(Reference::SerialPort)},
    {key::Device, L"BaudRate", &C::m_dwBaudRate, 9600, kBaudRate, Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpPTRFL720MJRegInfo, CPTRRegInfo, kSettings)
