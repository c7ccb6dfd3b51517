#include "wqspcfg/models/crd/SpCRDTTCEK201RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/CRD.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using C = CSpCRDTTCEK201RegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Comm,    L"Port",               &C::m_dwPort,               1,    meaning::kPort, Saved},
    {key::Comm,    L"BaudRate",           &C::m_dwBaudRate,           9600, meaning::kBaudRate, Saved},
    {key::Control, L"RetainBinNumber",    &C::m_dwRetainBinNumber,    1,    meaning::crd::kRetainBinNumber, Saved},
    {key::Control, L"RetainBin",          &C::m_dwRetainBin,          1,    meaning::kRetainBin, Saved},
    {key::Control, L"SupplyBin1Number",   &C::m_dwSupplyBin1Number,   2,    meaning::crd::kSupplyBin1Number, Saved},
    {key::Control, L"DispenseBin1Number", &C::m_dwDispenseBin1Number, 2,    meaning::crd::kDispenseBin1Number, Saved},
    {key::Control, L"SupplyBinLow",       &C::m_dwSupplyBinLow,       5,    meaning::kSupplyBinLow, Saved},
    {key::Control, L"MaxSupplyCard",      &C::m_dwMaxSupplyCard,      100,  meaning::kMaxSupplyCard, Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpCRDTTCEK201RegInfo, CCRDRegInfo, kSettings)
