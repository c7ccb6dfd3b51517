#include "wqspcfg/models/crm/SpCIMiVIZION100SSRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"

using namespace wqspcfg;
using C = CSpCIMiVIZION100SSRegInfo;

namespace {

constexpr Key kHopperA = key::Below(L"Cassette\\Hopper\\A");

// clang-format off
constexpr Setting kSettings[] = {
    {key::Capabilities, L"UseEscrow", &C::m_dwUseEscrow, 1,   L"escrow: 0 none; 1 used", Saved, OneOf},
    {key::Capabilities, L"CasVolume", &C::m_dwCasVolume, 600, L"capacity of the cassette in notes", Saved},
    {kHopperA, L"CasFull", &C::m_dwCasFull, 550,
     L"notes at which the cassette is full", Saved, Label(L"A.CasFull")},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpCIMiVIZION100SSRegInfo, CCRMRegInfo, kSettings)
