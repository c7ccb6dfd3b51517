#include "wqspcfg/models/crd/SpCRDTY3300UkeyRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/CRD.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using C = CSpCRDTY3300UkeyRegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Comm, L"Port", &C::m_dwPort, 1,
     meaning::kPort, Saved, RefersTo(Reference::SerialPort)},
    {key::Comm,    L"BaudRate",           &C::m_dwBaudRate,           9600, meaning::kBaudRate, Saved},
    {key::Control, L"TimesToTryWhenFail", &C::m_dwTimesToTryWhenFail, 3,    meaning::crd::kTimesToTryWhenFail, Saved},
    {key::Control, L"NumDispenseBin",     &C::m_dwNumDispenseBin,     2,    L"number of the dispense bin", Saved},
    {key::Control, L"NumRetainBin",       &C::m_dwNumRetainBin,       1,    meaning::crd::kRetainBinNumber, Saved},
    {key::Control, L"PowerOffOption",     &C::m_dwPowerOffOption,     0,    meaning::kPowerOffOption, OneOf},
    {key::Control, L"OpenOption",         &C::m_dwOpenOption,         0,    meaning::crd::kOpenOption, Saved},
    {key::Control, L"CloseOption",        &C::m_dwCloseOption,        2,    meaning::kCloseOption, Saved, OneOf},
    {key::Control, L"ApProtocolType",     &C::m_dwApProtocolType,     0,    meaning::crd::kApProtocolType, Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpCRDTY3300UkeyRegInfo, CCRDRegInfo, kSettings)
