#include "wqspcfg/models/idc/SpIDCPrdSimReaderRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/IDC.h"

using namespace wqspcfg;
using C = CSpIDCPrdSimReaderRegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Device, L"DN.IDC_CONTACTLESS", &C::m_strDN_IDC_CONTACTLESS, L"",
     L"name of the device driver module of the contactless card reader", Saved},
    {key::Control, L"CheckCardInsertOfIdle", &C::m_bCheckCardInsertOfIdle, 0, meaning::kCheckCardInsertOfIdle, Saved},
    {key::Control, L"FindCardPolicy",        &C::m_dwFindCardPolicy,       0, meaning::kFindCardPolicy, Saved},
    {key::Control, L"HandleRepeatCardPolicy", &C::m_dwHandleRepeatCardPolicy, 0,
     meaning::kHandleRepeatCardPolicy, Saved},
    {key::Control, L"SetMediaNotPresent", &C::m_bSetMediaNotPresent, 0, meaning::kSetMediaNotPresent, Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpIDCPrdSimReaderRegInfo, CIDCRegInfo, kSettings)
