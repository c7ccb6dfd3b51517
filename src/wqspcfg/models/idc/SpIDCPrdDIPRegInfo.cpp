#include "wqspcfg/models/idc/SpIDCPrdDIPRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/IDC.h"

using namespace wqspcfg;
using C = CSpIDCPrdDIPRegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Device, L"DN.IDC_DIP", &C::m_strDN_IDC_DIP, L"",
     L"name of the device driver module of the dip card reader", Saved},
    {key::Control, L"TranformIC2Hex", &C::m_bTranformIC2Hex, 0, meaning::kTranformIC2Hex, Saved},
    {key::Control, L"RawDataToChipIO", &C::m_bRawDataToChipIO, 0,
     L"reading raw data uses chip I/O: 0 no; nonzero yes", Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpIDCPrdDIPRegInfo, CIDCRegInfo, kSettings)
