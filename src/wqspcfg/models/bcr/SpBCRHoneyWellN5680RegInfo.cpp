#include "wqspcfg/models/bcr/SpBCRHoneyWellN5680RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using C = CSpBCRHoneyWellN5680RegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Comm, L"VirtualCom", &C::m_dwVirtualCom, 0,    L"serial port: 0 real; 1 virtual", Saved, KeepWhenMissing, OneOf},
    {key::Comm, L"Type",       &C::m_dwType,       0,    L"communication type: 0 serial; 1 USB", Saved, OneOf},
    {key::Comm, L"Port",       &C::m_dwPort,       1,    meaning::kPort, Saved},
    {key::Comm, L"BaudRate",   &C::m_dwBaudRate,   9600, meaning::kBaudRate, Saved, KeepWhenMissing},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpBCRHoneyWellN5680RegInfo, CBCRRegInfo, kSettings)
