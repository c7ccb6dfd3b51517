#include "wqspcfg/models/idc/SpRCMDlpRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"

using namespace wqspcfg;
using C = CSpRCMDlpRegInfo;

namespace {

constexpr Key kRcmDlp = key::Below(L"RCM\\Dlp");

// clang-format off
constexpr Setting kSettings[] = {
    {kRcmDlp, L"ReconnectCount", &C::m_dwReconnectCount, 3, L"number of attempts to reconnect", Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpRCMDlpRegInfo, CIDCRegInfo, kSettings)
