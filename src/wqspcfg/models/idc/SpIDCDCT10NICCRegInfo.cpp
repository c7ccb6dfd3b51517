#include "wqspcfg/models/idc/SpIDCDCT10NICCRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/IDC.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using C = CSpIDCDCT10NICCRegInfo;

namespace {

constexpr Key kTimeSet = key::Below(L"TimeSet");

// clang-format off
constexpr Setting kSettings[] = {
    {key::Comm, L"BaudRate", &C::m_dwBaudRate, 9600, meaning::kBaudRate, Saved},
    {key::Comm, L"Port",     &C::m_dwPort,     1,    meaning::kPort, Saved, RefersTo(Reference::SerialPort)},
    {kTimeSet, L"TimesOfGetStIfSwitchLed", &C::m_dwTimesOfGetStIfSwitchLed, 1,
     meaning::kTimesOfGetStIfSwitchLed, Saved},
    {key::Control, L"TranformIC2Hex", &C::m_bTranformIC2Hex, 0, meaning::kTranformIC2Hex, Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpIDCDCT10NICCRegInfo, CIDCRegInfo, kSettings)
