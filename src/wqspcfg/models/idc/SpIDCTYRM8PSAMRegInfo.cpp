#include "wqspcfg/models/idc/SpIDCTYRM8PSAMRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using C = CSpIDCTYRM8PSAMRegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Comm, L"Port",     &C::m_dwPort,     1,    meaning::kPort, Saved, RefersTo(Reference::SerialPort)},
    {key::Comm, L"BaudRate", &C::m_dwBaudRate, 9600, meaning::kBaudRate, Saved},
    {key::Control, L"ReturnSuccessWhenDeActiveNoMedia", &C::m_bReturnSuccessWhenDeActiveNoMedia, 0,
     L"deactivating the chip with no card returns success: 0 no; nonzero yes", Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpIDCTYRM8PSAMRegInfo, CIDCRegInfo, kSettings)
