#include "wqspcfg/models/idc/SpIDCTTD2001RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using C = CSpIDCTTD2001RegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Comm, L"Port",     &C::m_dwPort,     1,    meaning::kPort, Saved, RefersTo(Reference::SerialPort)},
    {key::Comm, L"BautRate", &C::m_dwBautRate, 9600, meaning::kBaudRate, Saved},
    {key::Control, L"CloseShutterTime", &C::m_dwCloseShutterTime, 10,
     L"time in seconds until the shutter is closed", Saved},
    {key::Control, L"DevType", &C::m_dwDevType, 0, meaning::kNotDocumented, Saved},
    {key::Control, L"IniPath", &C::m_strIniPath, L"",
     L"path of the device's initialisation file", Saved, RefersTo(Reference::File)},
    {key::Control, L"LowPowerAlarm", &C::m_bLowPowerAlarm, 0, L"low power raises an alarm: 0 no; nonzero yes", Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpIDCTTD2001RegInfo, CIDCRegInfo, kSettings)
