#include "wqspcfg/models/crd/SpCRDTY2000RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/models/shared/CardDispenserPartsRows.h"
#include "wqspcfg/parts/meanings/CRD.h"

using namespace wqspcfg;
using C = CSpCRDTY2000RegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    Group(Rows<kNumberedBinRows>),
    {key::Control, L"SupplyBinLow",     &C::m_dwSupplyBinLow,     5,   meaning::kSupplyBinLow, Saved},
    {key::Control, L"MaxSupplyCard",    &C::m_dwMaxSupplyCard,    100, meaning::kMaxSupplyCard, Saved},
    {key::Control, L"TreatyOfAp",       &C::m_dwTreatyOfAp,       0,   meaning::crd::kTreatyOfAp, Saved},
    {key::Control, L"PowerOnOffAction", &C::m_dwPowerOnOffAction, 0,   L"action at power on and at power off", Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpCRDTY2000RegInfo, NumberedBinDispenser, kSettings)
