#include "wqspcfg/models/crd/SpCRDTTCEK201RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/models/shared/CardDispenserPartsRows.h"
#include "wqspcfg/parts/meanings/CRD.h"

using namespace wqspcfg;
using C = CSpCRDTTCEK201RegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    Group(Rows<kNumberedBinRows>),
    {key::Control, L"SupplyBinLow",  &C::m_dwSupplyBinLow,  5,   meaning::kSupplyBinLow, Saved},
    {key::Control, L"MaxSupplyCard", &C::m_dwMaxSupplyCard, 100, meaning::kMaxSupplyCard, Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpCRDTTCEK201RegInfo, NumberedBinDispenser, kSettings)
