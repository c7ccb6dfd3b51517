#include "wqspcfg/models/pin/SpPINJstdE6060RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/PIN.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using C = CSpPINJstdE6060RegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    Group(Rows<kJstdKeypadRows<C>>),
    {key::Comm, L"Port", &C::m_dwPort, 0,
     meaning::kPort, Saved, RefersTo(Reference::SerialPort)},
    {key::Comm, L"BaudRate", &C::m_dwBaudRate, 57600,
     meaning::kBaudRate, Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpPINJstdE6060RegInfo, CPINRegInfo, kSettings)
