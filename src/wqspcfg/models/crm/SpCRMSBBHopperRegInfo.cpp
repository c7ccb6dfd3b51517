#include "wqspcfg/models/crm/SpCRMSBBHopperRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/models/shared/CassetteKeys.h"
#include "wqspcfg/parts/meanings/CRM.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using C = CSpCRMSBBHopperRegInfo;

namespace {

constexpr Key kHopperA = key::Below(L"Cassette\\Hopper\\A");

// clang-format off
constexpr Setting kSettings[] = {
    {key::Hopper, L"UnitPhyPosName", &C::m_dwUnitPhyPosName, 0, meaning::kUnitPhyPosName, Saved, OneOf},
    {kHopperA, L"CurrentCasCount", &C::m_dwCurrentCasCount, 0,
     L"coins in the hopper", Saved, Label(L"A.CurrentCasCount")},
    {kHopperA, L"Type", &C::m_dwType, 0,
     L"denomination that the hopper dispenses: 0x64 100; 0x32 50; 0x0A 10; 0 none set", Saved, OneOf, Format(L"0x%02X"),
     Label(L"A.Type")},
    {kHopperA, L"CasFull",     &C::m_dwCasFull,     500, meaning::kCoinCasFull, Saved, Label(L"A.CasFull")},
    {kHopperA, L"CasNearFull", &C::m_dwCasNearFull, 450, meaning::kCoinCasNearFull, Saved, Label(L"A.CasNearFull")},
    {kHopperA, L"CasEmpty",    &C::m_dwCasEmpty,    0,   meaning::kCoinCasEmpty, Saved, Label(L"A.CasEmpty")},
    {kHopperA, L"CasNearEmpty", &C::m_dwCasNearEmpty, 50,
     meaning::kCoinCasNearEmpty, Saved, Label(L"A.CasNearEmpty")},
    {key::Comm, L"Port",     &C::m_dwPort,     1,    meaning::kPort, Saved, RefersTo(Reference::SerialPort)},
    {key::Comm, L"BaudRate", &C::m_dwBaudRate, 9600, meaning::kBaudRate, Saved},
    {key::Capabilities, L"OnlyDispenseTimeOut", &C::m_dwOnlyDispenseTimeOut, 60000,
     meaning::kCoinDispenseTimeOut, Saved},
    {key::Capabilities, L"AutoRecoverCount", &C::m_dwAutoRecoverCount, 3, meaning::kAutoRecoverCount, Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpCRMSBBHopperRegInfo, CCRMRegInfo, kSettings)
