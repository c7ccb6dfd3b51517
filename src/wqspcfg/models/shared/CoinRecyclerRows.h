// The settings of coin hoppers and of the coin recyclers.
#pragma once

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/models/shared/CassetteKeys.h"
#include "wqspcfg/models/shared/CoinRecycler.h"
#include "wqspcfg/parts/meanings/CRM.h"
#include "wqspcfg/parts/meanings/Shared.h"

namespace wqspcfg {

// clang-format off
template <class C>
inline constexpr Setting kCoinHopper[] = {
    {key::HopperSlot, L"CasFull", Element<&C::m_arSlot, &tagCoinHopper::dwCasFull>,
     500, meaning::kCoinCasFull, Saved, Label(L"%s.CasFull")},
    {key::HopperSlot, L"CasNearFull", Element<&C::m_arSlot, &tagCoinHopper::dwCasNearFull>,
     450, meaning::kCoinCasNearFull, Saved, Label(L"%s.CasNearFull")},
    {key::HopperSlot, L"CasEmpty", Element<&C::m_arSlot, &tagCoinHopper::dwCasEmpty>,
     0, meaning::kCoinCasEmpty, Saved, Label(L"%s.CasEmpty")},
    {key::HopperSlot, L"CasNearEmpty", Element<&C::m_arSlot, &tagCoinHopper::dwCasNearEmpty>,
     50, meaning::kCoinCasNearEmpty, Saved, Label(L"%s.CasNearEmpty")},
};

inline constexpr const wchar_t* kCoinRecyclerSlots[] = {L"A", L"B", L"C", L"R"};
inline constexpr DWORD kCoinRecyclerTypes[] = {0x100, 0x050, 0x010, 0x000};
inline constexpr Setting kCoinRecyclerSlot[] = {
    Group(Rows<kCoinHopper<CoinRecycler>>),
    {key::HopperSlot, L"Type", Element<&CoinRecycler::m_arSlot, &tagCoinRecycleHopper::dwType>,
     0,
     L"denomination of the hopper: 0x100 recycle for 1 yuan; 0x050 recycle for 5 jiao; 0x010 recycle for 1 jiao; "
     L"0x000 none",
     Saved, OneOf, PerIteration(kCoinRecyclerTypes), Format(L"0x%03X"), Label(L"%s.Type")},
};
inline constexpr Setting kCoinRecycler[] = {
    {key::Hopper, L"UnitPhyPosName", &CoinRecycler::m_dwUnitPhyPosName, 0, meaning::kUnitPhyPosName, Saved, OneOf},
    Repeat(kCoinRecyclerSlots, Rows<kCoinRecyclerSlot>),
};
// clang-format on

} // namespace wqspcfg
