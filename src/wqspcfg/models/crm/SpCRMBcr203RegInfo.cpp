#include "wqspcfg/models/crm/SpCRMBcr203RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/CRM.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using C = CSpCRMBcr203RegInfo;

namespace {

constexpr Key kHopper = key::Below(L"Cassette\\Hopper");
constexpr Key kSlot = key::Below(L"Cassette\\Hopper\\%c");

constexpr const wchar_t* kSlots[] = {L"A", L"B", L"C", L"R"};
constexpr DWORD kTypes[] = {0x100, 0x050, 0x010, 0x000};

// clang-format off
constexpr Setting kSlotRows[] = {
    {kSlot, L"CasFull",      Element<&C::m_arSlot, &tagCoinRecycleHopper::dwCasFull>,      500, meaning::kCoinCasFull, Saved, Label(L"%c.CasFull")},
    {kSlot, L"CasNearFull",  Element<&C::m_arSlot, &tagCoinRecycleHopper::dwCasNearFull>,  450, meaning::kCoinCasNearFull, Saved, Label(L"%c.CasNearFull")},
    {kSlot, L"CasEmpty",     Element<&C::m_arSlot, &tagCoinRecycleHopper::dwCasEmpty>,     0, meaning::kCoinCasEmpty, Saved, Label(L"%c.CasEmpty")},
    {kSlot, L"CasNearEmpty", Element<&C::m_arSlot, &tagCoinRecycleHopper::dwCasNearEmpty>, 50, meaning::kCoinCasNearEmpty, Saved, Label(L"%c.CasNearEmpty")},
    {kSlot, L"Type",         Element<&C::m_arSlot, &tagCoinRecycleHopper::dwType>,         0, meaning::kCoinType, Saved, PerIteration(kTypes), Format(L"0x%03X"), Label(L"%c.Type")},
};

constexpr Setting kSettings[] = {
    {kHopper, L"UnitPhyPosName", &C::m_dwUnitPhyPosName, 0, meaning::kUnitPhyPosName, Saved, OneOf},
    Repeat(kSlots, kSlotRows),
    {key::Comm,         L"Port",                   &C::m_dwPort,                   1,     meaning::kPort, Saved},
    {key::Comm,         L"BaudRate",               &C::m_dwBaudRate,               9600,  meaning::kBaudRate, Saved},
    {key::Capabilities, L"DepositTimeOut",         &C::m_dwDepositTimeOut,         60000, L"time-out of a deposit in ms", Saved},
    {key::Capabilities, L"DepositTimeOfWaiting",   &C::m_dwDepositTimeOfWaiting,   30000, L"how long a deposit waits for coins, in ms", Saved},
    {key::Capabilities, L"DepositBeltTimeOut",     &C::m_dwDepositBeltTimeOut,     30000, L"time-out of the belt in a deposit, in ms", Saved},
    {key::Capabilities, L"ProcDenom100",           &C::m_dwProcDenom100,           7,     L"series of 1 yuan coins that are accepted, bit set: 1 series B; 2 series C; 4 series D", Saved},
    {key::Capabilities, L"ProcDenom050",           &C::m_dwProcDenom050,           7,     L"series of 5 jiao coins that are accepted, bit set: 1 series B; 2 series C; 4 series D", Saved},
    {key::Capabilities, L"ProcDenom010",           &C::m_dwProcDenom010,           7,     L"series of 1 jiao coins that are accepted, bit set: 1 series B; 2 series C; 4 series D", Saved},
    {key::Capabilities, L"DispenseTimeOut",        &C::m_dwDispenseTimeOut,        60000, meaning::kCoinDispenseTimeOut, Saved},
    {key::Capabilities, L"DispenseBeltTimeOut",    &C::m_dwDispenseBeltTimeOut,    30000, L"time-out of the belt in a dispense, in ms", Saved},
    {key::Capabilities, L"ClearHopperBeltTimeOut", &C::m_dwClearHopperBeltTimeOut, 30000, L"time-out of the belt when a hopper is cleared, in ms", Saved},
    {key::Capabilities, L"ResetTimeOut",           &C::m_dwResetTimeOut,           60000, L"time-out of a reset in ms", Saved},
    {key::Capabilities, L"AutoRecoverCount",       &C::m_dwAutoRecoverCount,       3,     meaning::kAutoRecoverCount, Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpCRMBcr203RegInfo, CCRMRegInfo, kSettings)
