#include "wqspcfg/models/crd/SpCRDKoreaTLD1000RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/models/shared/CardDispenserPartsRows.h"
#include "wqspcfg/parts/CardRetention.h"

using namespace wqspcfg;
using C = CSpCRDKoreaTLD1000RegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    Group(Rows<kTLD1000LinkRows<CIDCRegInfo>>),
    {kRetainCardSet, L"MaxRetainCard", &C::m_dwMaxRetainCard, 20, meaning::kMaxRetainCard, Saved, Preloaded},
    {kRetainCardSet, L"RetainBinHigh", &C::m_dwRetainBinHigh, 15,
     meaning::kRetainBinHighOfMaxRetainCard, Saved, Preloaded},
    Group(Rows<kTLD1000CardRows<CIDCRegInfo>>),
    {key::Control, L"DispenseCardStyle", &C::m_dwDispenseCardStyle, 0, L"style of dispensing a card", Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpCRDKoreaTLD1000RegInfo, TLD1000Dispenser<CIDCRegInfo>, kSettings)
