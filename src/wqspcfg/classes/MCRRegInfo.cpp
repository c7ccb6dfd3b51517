#include "wqspcfg/classes/MCRRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/CardRetention.h"

using namespace wqspcfg;
using C = CMCRRegInfo;

namespace {

constexpr Key kSlotInfo = key::Below(L"SlotInfo");

// clang-format off
constexpr Setting kSettings[] = {
    {key::IdleInterval, L"WaitCardTaken", &C::m_dwWaitCardTaken, 500,
     L"idle polling interval in ms while waiting for a returned card to be taken",
     Line(L"[CFG] %40s : %d[%s"), kPollingInterval<C>},
    {kRetainCardSet, L"MaxRetainCard", &C::m_dwMaxRetainCard, 20, meaning::kMaxRetainCard, Saved},
    {kRetainCardSet, L"RetainBinHigh", &C::m_dwRetainBinHigh, 15,
     meaning::kRetainBinHighOfMaxRetainCard, Saved, kBelowCapacity<C>},
    {kRetainCardSet, L"CountOfRetained", &C::m_dwCountOfRetained, 0, meaning::kCountOfRetained, Saved},
    {kSlotInfo,      L"CardSlotCn",      &C::m_dwCardSlotCn,      5, L"number of circulating card slots", Saved},
};
// clang-format on

} // namespace

WQSPCFG_CLASS_SETTINGS(CMCRRegInfo, L"MCR", kSettings)
