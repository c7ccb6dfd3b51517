#include "wqspcfg/models/crd/SpCRDUKeyRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/CRD.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using C = CSpCRDUKeyRegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Comm, L"Port", &C::m_dwPort, 1,
     meaning::kPort, Saved, RefersTo(Reference::SerialPort)},
    {key::Comm,    L"BaudRate",      &C::m_dwBaudRate,      9600, meaning::kBaudRate, Saved},
    {key::Control, L"MaxUKeyCount",  &C::m_dwMaxUKeyCount,  100,  L"largest number of USB keys", Saved},
    {key::Control, L"NumOfConfUKey", &C::m_dwNumOfConfUKey, 1,    L"number of configured USB keys", Saved},
    {key::Control, L"UKeyType",      &C::m_dwUKeyType,      0,    L"type of the USB key", Saved},
    {key::Control, L"WaitUKeyTakenTime", &C::m_dwWaitUKeyTakenTime, 30,
     L"time to wait for the USB key to be taken, in seconds", Saved},
    {key::Control, L"SupplyBinLow",      &C::m_dwSupplyBinLow,      5,   meaning::kSupplyBinLow, Saved},
    {key::Control, L"SupplyBinMax",      &C::m_dwSupplyBinMax,      100, meaning::crd::kSupplyBinMax, Saved},
    {key::Control, L"SupplyBinIniCount", &C::m_dwSupplyBinIniCount, 100, meaning::crd::kSupplyBinIniCount, Saved},
    {key::Control, L"CardIsSupply", &C::m_bCardIsSupply, 0,
     L"cards are supplied: 0 no; nonzero yes", Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpCRDUKeyRegInfo, CCRDRegInfo, kSettings)
