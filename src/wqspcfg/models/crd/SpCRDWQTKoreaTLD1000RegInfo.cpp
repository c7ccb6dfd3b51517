#include "wqspcfg/models/crd/SpCRDWQTKoreaTLD1000RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/models/shared/CardDispenserPartsRows.h"
#include "wqspcfg/parts/CardRetention.h"

using namespace wqspcfg;
using C = CSpCRDWQTKoreaTLD1000RegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    Group(Rows<kTLD1000LinkRows<CCRDRegInfo>>),
    {key::Control,   L"SupplyThreshold", &C::m_dwSupplyThreshold, 5,  L"threshold of the supply bin, in cards", Saved},
    {kRetainCardSet, L"MaxRetainCard",   &C::m_dwMaxRetainCard,   20, meaning::kMaxRetainCard, Saved},
    {kRetainCardSet, L"RetainBinHigh", &C::m_dwRetainBinHigh, 15,
     meaning::kRetainBinHighOfMaxRetainCard, Saved, kBelowCapacity<C>},
    Group(Rows<kTLD1000CardRows<CCRDRegInfo>>),
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpCRDWQTKoreaTLD1000RegInfo, TLD1000Dispenser<CCRDRegInfo>, kSettings)
