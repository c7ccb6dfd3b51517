#include "wqspcfg/models/crd/SpCRDTTCED16X0RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/CRD.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using C = CSpCRDTTCED16X0RegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Comm, L"DevType",        &C::m_dwDevType,        0, meaning::kNotDocumented, Saved},
    {key::Comm, L"ApProtocolType", &C::m_dwApProtocolType, 0, meaning::crd::kApProtocolType, Saved},
    {key::Comm, L"Port", &C::m_dwPort, 1,
     meaning::kPort, Saved, RefersTo(Reference::SerialPort)},
    {key::Comm,    L"BaudRate",           &C::m_dwBaudRate,           9600, meaning::kBaudRate, Saved},
    {key::Control, L"SupplyBinCount",     &C::m_dwSupplyBinCount,     1,    meaning::crd::kSupplyBinCount, Saved},
    {key::Control, L"RetainBinCount",     &C::m_dwRetainBinCount,     1,    meaning::crd::kRetainBinCount, Saved},
    {key::Control, L"SupplyBinLow",       &C::m_dwSupplyBinLow,       5,    meaning::kSupplyBinLow, Saved},
    {key::Control, L"SupplyBinMax",       &C::m_dwSupplyBinMax,       100,  meaning::crd::kSupplyBinMax, Saved},
    {key::Control, L"PowerOnOption",      &C::m_dwPowerOnOption,      1,    meaning::kPowerOnOption, Saved, OneOf},
    {key::Control, L"TimesToTryWhenFail", &C::m_dwTimesToTryWhenFail, 3,    meaning::crd::kTimesToTryWhenFail, Saved},
    {key::Control, L"PolicyOfRetainBin",  &C::m_dwPolicyOfRetainBin,  0,    meaning::kNotDocumented, Saved},
    {key::Control, L"AllowResetWithRetainOnFull", &C::m_bAllowResetWithRetainOnFull, 0,
     meaning::crd::kAllowResetWithRetainOnFull, Saved},
    {key::Control, L"AllowDisWithRetainBinPhyFull", &C::m_bAllowDisWithRetainBinPhyFull, 0,
     meaning::crd::kAllowDisWithRetainBinPhyFull, Saved},
    {key::Control, L"AllowDisWithRetainBinLogicFull", &C::m_bAllowDisWithRetainBinLogicFull, 0,
     meaning::crd::kAllowDisWithRetainBinLogicFull, Saved},
    {key::Control, L"SupplyBinIniCount", &C::m_dwSupplyBinIniCount, 100, meaning::crd::kSupplyBinIniCount, Saved},
    {key::Control, L"PolicyOfExtraSuppBinST", &C::m_dwPolicyOfExtraSuppBinST, 0,
     meaning::crd::kPolicyOfExtraSuppBinST, Saved},
    {key::Control, L"PowerOffOption",   &C::m_dwPowerOffOption,   0, meaning::kPowerOffOption, OneOf},
    {key::Control, L"ShutterErrOption", &C::m_dwShutterErrOption, 0, L"what happens on a shutter error", Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpCRDTTCED16X0RegInfo, CCRDRegInfo, kSettings)
