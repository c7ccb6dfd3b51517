#include "wqspcfg/models/idc/SpIDCMT4DPR312RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using C = CSpIDCMT4DPR312RegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Comm, L"Port",     &C::m_dwPort,     1,    meaning::kPort, Saved, RefersTo(Reference::SerialPort)},
    {key::Comm, L"Baudrate", &C::m_dwBaudrate, 9600, meaning::kBaudRate, Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpIDCMT4DPR312RegInfo, CIDCRegInfo, kSettings)
