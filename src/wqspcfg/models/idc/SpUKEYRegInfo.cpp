#include "wqspcfg/models/idc/SpUKEYRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using C = CSpUKEYRegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Comm, L"Port", &C::m_dwPort, 1,
     meaning::kPort, Saved, RefersTo(Reference::SerialPort)},
    {key::Comm,    L"BaudRate",      &C::m_dwBaudRate,      9600, meaning::kBaudRate, Saved},
    {key::Control, L"MaxUKeyCount",  &C::m_dwMaxUKeyCount,  100,  L"largest number of USB keys", Saved},
    {key::Control, L"NumOfConfUKey", &C::m_dwNumOfConfUKey, 1,    L"number of configured USB keys", Saved},
    {key::Control, L"UKeyType",      &C::m_dwUKeyType,      0,    L"type of the USB key", Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpUKEYRegInfo, CIDCRegInfo, kSettings)
