#include "wqspcfg/models/crd/SpCRDWQTYRM3000RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/CRD.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using C = CSpCRDWQTYRM3000RegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Comm, L"Type", &C::m_dwType, 0, meaning::kNotDocumented, Saved},
    {key::Comm, L"Port", &C::m_dwPort, 1,
     meaning::kPort, Saved, RefersTo(Reference::SerialPort)},
    {key::Comm,    L"BaudRate",       &C::m_dwBaudRate,       9600, meaning::kBaudRate, Saved},
    {key::Control, L"CountSupplyBin", &C::m_dwCountSupplyBin, 2,    meaning::crd::kSupplyBinCount, Saved},
    {key::Control, L"PowerOffOption", &C::m_dwPowerOffOption, 0,    meaning::kPowerOffOption, OneOf},
    {key::Control, L"PowerOnOption",  &C::m_dwPowerOnOption,  1,    meaning::kPowerOnOption, Saved, OneOf},
    {key::Control, L"CloseOption",    &C::m_dwCloseOption,    2,    meaning::kCloseOption, Saved, OneOf},
    {key::Control, L"DispenseBin1",     &C::m_dwDispenseBin1,     2,    meaning::kDispenseBin1, Saved,
     RefersTo(Reference::CardUnit)},
    {key::Control, L"DispenseBin2",     &C::m_dwDispenseBin2,     3,    meaning::kDispenseBin2, Saved,
     RefersTo(Reference::CardUnit)},
    {key::Control, L"RetainBin",        &C::m_dwRetainBin,        1,    meaning::kRetainBin, Saved,
     RefersTo(Reference::CardUnit)},
    {key::Control, L"DispenseTo",       &C::m_dwDispenseTo,       0,   meaning::crd::kDispenseTo, Saved},
    {key::Control, L"SkimOfInsertCard", &C::m_dwSkimOfInsertCard, 0,   meaning::kSkimOfInsertCard, Saved},
    {key::Control, L"MaxSupplyCard",    &C::m_dwMaxSupplyCard,    100, meaning::kMaxSupplyCard, Saved},
    {key::Control, L"SupplyBinLow",     &C::m_dwSupplyBinLow,     5,   meaning::kSupplyBinLow, Saved},
    {key::Control, L"ActionOfSliderCardForDispense", &C::m_dwActionOfSliderCardForDispense, 0,
     L"action of the card slider for a dispense", Saved},
    {key::Control, L"ActionOfSliderCardForEjectCard", &C::m_dwActionOfSliderCardForEjectCard, 0,
     L"action of the card slider for ejecting a card", Saved},
    {key::Control, L"CountForceDispense", &C::m_dwCountForceDispense, 0, L"count of forced dispenses", Saved},
    {key::Control, L"RetainBinStatus", &C::m_dwRetainBinStatus, 0,
     meaning::kRetainBinStatus, Saved, OneOf},
    {key::Control, L"NeedSupportMediaLatched", &C::m_bNeedSupportMediaLatched, 0, meaning::kMediaLatched, Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpCRDWQTYRM3000RegInfo, CCRDRegInfo, kSettings)
