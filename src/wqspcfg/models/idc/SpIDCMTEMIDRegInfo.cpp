#include "wqspcfg/models/idc/SpIDCMTEMIDRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using C = CSpIDCMTEMIDRegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Comm, L"BaudRate", &C::m_dwBaudRate, 9600, meaning::kBaudRate, Saved},
    {key::Comm, L"Port",     &C::m_dwPort,     1,    meaning::kPort, Saved, RefersTo(Reference::SerialPort)},
    {key::Comm, L"Type",     &C::m_dwType,     0,    meaning::kNotDocumented, Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpIDCMTEMIDRegInfo, CIDCRegInfo, kSettings)
