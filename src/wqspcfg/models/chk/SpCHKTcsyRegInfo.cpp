#include "wqspcfg/models/chk/SpCHKTcsyRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using C = CSpCHKTcsyRegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Comm, L"Port", &C::m_dwPort, 1,
     meaning::kPort, Saved, RefersTo(Reference::SerialPort)},
    {key::Comm, L"BaudRate", &C::m_dwBaudRate, 9600, meaning::kBaudRate, Saved},
    {key::Control, L"DevType", &C::m_dwDevType, 0,
     L"device variant: 0 the reader vendor's production setting; 1 that vendor's test setting for one bank; 2 and 3 "
     L"fingerprint readers of two other makers", Saved, OneOf},
    {key::Control, L"StExtraRetFacInfo", &C::m_bStExtraRetFacInfo, 0,
     L"the extended status returns vendor information: 0 no; nonzero yes", Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpCHKTcsyRegInfo, CCHKRegInfo, kSettings)
