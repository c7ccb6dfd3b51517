#include "wqspcfg/models/idc/SpIDCHoneyWellN5680RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using C = CSpIDCHoneyWellN5680RegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Comm, L"Type",     &C::m_dwType,     0,    L"communication type: 0 serial; 1 USB", Saved, OneOf},
    {key::Comm, L"Port",     &C::m_dwPort,     1,    meaning::kPort, Saved, RefersTo(Reference::SerialPort)},
    {key::Comm, L"BaudRate", &C::m_dwBaudRate, 9600, meaning::kBaudRate, Saved},
    {key::Device, L"UseTrackWMRead", &C::m_dwUseTrackWMRead, 0,
     L"QR codes are read through the XFS card-reader track WFS_IDC_TRACK_WM: 0 no; nonzero yes", Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpIDCHoneyWellN5680RegInfo, CIDCRegInfo, kSettings)
