#include "wqspcfg/models/crd/SpCRDACT3UKeyRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/CRD.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using C = CSpCRDACT3UKeyRegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Comm, L"DevType",        &C::m_dwDevType,        0, meaning::kNotDocumented, Saved},
    {key::Comm, L"ApProtocolType", &C::m_dwApProtocolType, 0, meaning::crd::kApProtocolType, Saved},
    {key::Comm, L"Port", &C::m_dwPort, 1,
     meaning::kPort, Saved, RefersTo(Reference::SerialPort)},
    {key::Comm, L"BaudRate", &C::m_dwBaudRate, 9600, meaning::kBaudRate, Saved},
    {key::Control, L"SupplyBinCount", &C::m_dwSupplyBinCount, 1,
     meaning::crd::kSupplyBinCount, SavedAs(L"upplyBinCount")},
    {key::Control, L"RetainBinCount",     &C::m_dwRetainBinCount,     1,   meaning::crd::kRetainBinCount, Saved},
    {key::Control, L"SupplyBinLow",       &C::m_dwSupplyBinLow,       5,   meaning::kSupplyBinLow, Saved},
    {key::Control, L"SupplyBinMax",       &C::m_dwSupplyBinMax,       100, meaning::crd::kSupplyBinMax, Saved},
    {key::Control, L"TimesToTryWhenFail", &C::m_dwTimesToTryWhenFail, 3,   meaning::crd::kTimesToTryWhenFail, Saved},
    {key::Control, L"AllowResetWithRetainOnFull", &C::m_bAllowResetWithRetainOnFull, 0,
     meaning::crd::kAllowResetWithRetainOnFull, Saved},
    {key::Control, L"DispenseBin1", &C::m_dwDispenseBin1, 2, meaning::kDispenseBin1, Saved,
     RefersTo(Reference::CardUnit)},
    {key::Control, L"RetainBin",    &C::m_dwRetainBin,    1, meaning::kRetainBin, Saved,
     RefersTo(Reference::CardUnit)},
    {key::Control, L"AutoRetainTime", &C::m_dwAutoRetainTime, 30,
     L"time until a card is retained automatically, in seconds", Saved},
    {key::Control, L"ResetTransConstruct", &C::m_bResetTransConstruct, 0,
     L"the transport mechanism is reset: 0 no; nonzero yes", Saved},
    {key::Control, L"PreDispenseCard", &C::m_bPreDispenseCard, 0,
     L"a card is dispensed in advance: 0 no; nonzero yes", Saved},
    {key::Control, L"DispenseAfterRetainBinFull", &C::m_dwDispenseAfterRetainBinFull, 0,
     meaning::crd::kDispenseAfterRetainBinFull, SavedAsSwitch, Preloaded},
    {key::Control, L"RetainOnClose", &C::m_bRetainOnClose, 0,
     L"a card in the device is retained when the SP closes: 0 no; nonzero yes", Saved},
    {key::Control, L"PowerOnOption", &C::m_dwPowerOnOption, 1, meaning::kPowerOnOption, Saved, OneOf},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpCRDACT3UKeyRegInfo, CCRDRegInfo, kSettings)
