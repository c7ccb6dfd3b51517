#include "wqspcfg/models/crm/SpCRMSBBHopperMk2RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/CRM.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using C = CSpCRMSBBHopperMk2RegInfo;

namespace {

constexpr Key kHopper = key::Below(L"Cassette\\Hopper");
constexpr Key kSlot = key::Below(L"Cassette\\Hopper\\%c");

constexpr const wchar_t* kSlots[] = {L"A", L"B", L"C"};

// clang-format off
constexpr Setting kSlotRows[] = {
    {kSlot, L"CasFull",      Element<&C::m_arSlot, &tagCoinHopper::dwCasFull>,      500, meaning::kCoinCasFull, Saved, Label(L"%c.CasFull")},
    {kSlot, L"CasNearFull",  Element<&C::m_arSlot, &tagCoinHopper::dwCasNearFull>,  450, meaning::kCoinCasNearFull, Saved, Label(L"%c.CasNearFull")},
    {kSlot, L"CasEmpty",     Element<&C::m_arSlot, &tagCoinHopper::dwCasEmpty>,     0, meaning::kCoinCasEmpty, Saved, Label(L"%c.CasEmpty")},
    {kSlot, L"CasNearEmpty", Element<&C::m_arSlot, &tagCoinHopper::dwCasNearEmpty>, 50, meaning::kCoinCasNearEmpty, Saved, Label(L"%c.CasNearEmpty")},
};

constexpr Setting kSettings[] = {
    {kHopper, L"UnitPhyPosName", &C::m_dwUnitPhyPosName, 0, meaning::kUnitPhyPosName, Saved, OneOf},
    Repeat(kSlots, kSlotRows),
    {key::Comm,         L"Port",             &C::m_dwPort,             1,     meaning::kPort, Saved},
    {key::Comm,         L"BaudRate",         &C::m_dwBaudRate,         9600,  meaning::kBaudRate, Saved},
    {key::Capabilities, L"DispenseTimeOut",  &C::m_dwDispenseTimeOut,  60000, meaning::kCoinDispenseTimeOut, Saved},
    {key::Capabilities, L"AutoRecoverCount", &C::m_dwAutoRecoverCount, 3,     meaning::kAutoRecoverCount, Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpCRMSBBHopperMk2RegInfo, CCRMRegInfo, kSettings)
