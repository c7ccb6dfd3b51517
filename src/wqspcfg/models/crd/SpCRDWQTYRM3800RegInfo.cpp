#include "wqspcfg/models/crd/SpCRDWQTYRM3800RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/models/shared/CardDispenserPartsRows.h"
#include "wqspcfg/parts/meanings/CRD.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using C = CSpCRDWQTYRM3800RegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    Group(Rows<kNumberedBinRows>),
    {key::Control, L"SupplyBin2Number",   &C::m_dwSupplyBin2Number,   3,   L"number of supply bin 2", Saved},
    {key::Control, L"DispenseBin2Number", &C::m_dwDispenseBin2Number, 3,   L"number of dispense bin 2", Saved},
    {key::Control, L"SupplyBin3Number",   &C::m_dwSupplyBin3Number,   4,   L"number of supply bin 3", Saved},
    {key::Control, L"DispenseBin3Number", &C::m_dwDispenseBin3Number, 4,   L"number of dispense bin 3", Saved},
    {key::Control, L"SupplyBinLow",       &C::m_dwSupplyBinLow,       5,   meaning::kSupplyBinLow, Saved},
    {key::Control, L"MaxSupplyCard",      &C::m_dwMaxSupplyCard,      100, meaning::kMaxSupplyCard, Saved},
    {key::Control, L"TreatyOfAp",         &C::m_dwTreatyOfAp,         0,   meaning::crd::kTreatyOfAp, Saved},
    {key::Control, L"PowerOffOption",     &C::m_dwPowerOffOption,     0,   meaning::kPowerOffOption, OneOf},
    {key::Control, L"PowerOnOption",      &C::m_dwPowerOnOption,      1,   meaning::kPowerOnOption, Saved, OneOf},
    {key::Control, L"OpenOption",         &C::m_dwOpenOption,         0,   meaning::crd::kOpenOption, Saved},
    {key::Control, L"CloseOption",        &C::m_dwCloseOption,        2,   meaning::kCloseOption, Saved, OneOf},
    {key::Control, L"LogicalNameOfIDCReader", &C::m_strLogicalNameOfIDCReader, L"",
     meaning::kLogicalNameOfIDCReader, Saved, RefersTo(Reference::LogicalService)},
    {key::Control, L"AllowRetainOfRetainBinErr", &C::m_bAllowRetainOfRetainBinErr, 0,
     meaning::crd::kAllowRetainOfRetainBinErr, Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpCRDWQTYRM3800RegInfo, NumberedBinDispenser, kSettings)
