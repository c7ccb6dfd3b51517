#include "wqspcfg/models/crm/SpCRMBcr203RegInfo.h"

#include "wqspcfg/models/shared/CoinRecyclerRows.h"

using namespace wqspcfg;
using C = CSpCRMBcr203RegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    Group(Rows<kCoinRecycler>),
    {key::Comm, L"Port", &C::m_dwPort, 1,
     meaning::kPort, Saved, RefersTo(Reference::SerialPort)},
    {key::Comm,         L"BaudRate",       &C::m_dwBaudRate,       9600,  meaning::kBaudRate, Saved},
    {key::Capabilities, L"DepositTimeOut", &C::m_dwDepositTimeOut, 60000, L"time-out of a deposit in ms", Saved},
    {key::Capabilities, L"DepositTimeOfWaiting", &C::m_dwDepositTimeOfWaiting, 30000,
     L"how long a deposit waits for coins, in ms", Saved},
    {key::Capabilities, L"DepositBeltTimeOut", &C::m_dwDepositBeltTimeOut, 30000,
     L"time-out of the belt in a deposit, in ms", Saved},
    {key::Capabilities, L"ProcDenom100", &C::m_dwProcDenom100, 7,
     L"series of 1 yuan coins that are accepted, bit set: 1 series B; 2 series C; 4 series D", Saved},
    {key::Capabilities, L"ProcDenom050", &C::m_dwProcDenom050, 7,
     L"series of 5 jiao coins that are accepted, bit set: 1 series B; 2 series C; 4 series D", Saved},
    {key::Capabilities, L"ProcDenom010", &C::m_dwProcDenom010, 7,
     L"series of 1 jiao coins that are accepted, bit set: 1 series B; 2 series C; 4 series D", Saved},
    {key::Capabilities, L"DispenseTimeOut", &C::m_dwDispenseTimeOut, 60000, meaning::kCoinDispenseTimeOut, Saved},
    {key::Capabilities, L"DispenseBeltTimeOut", &C::m_dwDispenseBeltTimeOut, 30000,
     L"time-out of the belt in a dispense, in ms", Saved},
    {key::Capabilities, L"ClearHopperBeltTimeOut", &C::m_dwClearHopperBeltTimeOut, 30000,
     L"time-out of the belt when a hopper is cleared, in ms", Saved},
    {key::Capabilities, L"ResetTimeOut",     &C::m_dwResetTimeOut,     60000, L"time-out of a reset in ms", Saved},
    {key::Capabilities, L"AutoRecoverCount", &C::m_dwAutoRecoverCount, 3,     meaning::kAutoRecoverCount, Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpCRMBcr203RegInfo, CoinRecycler, kSettings)
