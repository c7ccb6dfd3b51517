#include "wqspcfg/models/ptr/SpPTRWQRSV100RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/models/shared/RSV100PrinterRows.h"
#include "wqspcfg/parts/meanings/PTR.h"

using namespace wqspcfg;
using namespace wqspcfg::meaning;
using C = CSpPTRWQRSV100RegInfo;

namespace {

// clang-format off

constexpr Setting kSettings[] = {
    Group(Rows<kRSV100Rows>),
    {key::Device, L"FrimBankType", &C::m_dwFrimBankType, 0,
     L"bank profile of the firmware; 0 the standard one", Saved},
    {key::Device, L"SaveImageTime", &C::m_dwSaveImageTime, 30, printer::kSaveImageTime, Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpPTRWQRSV100RegInfo, RSV100Printer, kSettings)
