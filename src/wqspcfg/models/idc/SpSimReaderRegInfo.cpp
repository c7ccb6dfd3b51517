#include "wqspcfg/models/idc/SpSimReaderRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/IDC.h"

using namespace wqspcfg;
using C = CSpSimReaderRegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Device, L"CardNameOfConn",   &C::m_strCardNameOfConn, L"", meaning::kCardNameOfConn, Saved},
    {key::Device, L"HandleRepeatCard", &C::m_bHandleRepeatCard, 0,   meaning::kHandleRepeatCard, Saved},
    {key::Device, L"RtnInvalidMediaOfRepeatCard", &C::m_bRtnInvalidMediaOfRepeatCard, 0,
     meaning::kRtnInvalidMediaOfRepeatCard, Saved},
    {key::Device, L"SupportChipPower",      &C::m_bSupportChipPower,      0, meaning::kSupportChipPower, Saved},
    {key::Device, L"CheckCardInsertOfIdle", &C::m_bCheckCardInsertOfIdle, 0, meaning::kCheckCardInsertOfIdle, Saved},
    {key::Device, L"CardReaderType",        &C::m_dwCardReaderType,       0, meaning::kCardReaderType, Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpSimReaderRegInfo, CIDCRegInfo, kSettings)
