#include "wqspcfg/models/ptr/SpPTRHoneyWellN5680RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/PTR.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using namespace wqspcfg::meaning;
using C = CSpPTRHoneyWellN5680RegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Comm, L"Type",     &C::m_dwType,     0,    printer::kType, Saved},
    {key::Comm, L"Port",     &C::m_dwPort,     1,    kPort, Saved, RefersTo(Reference::SerialPort)},
    {key::Comm, L"BaudRate", &C::m_dwBaudRate, 9600, kBaudRate, Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpPTRHoneyWellN5680RegInfo, CPTRRegInfo, kSettings)
