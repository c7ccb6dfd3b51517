#include "wqspcfg/models/ptr/SpPTRRSV100RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/models/shared/RSV100PrinterRows.h"
#include "wqspcfg/parts/meanings/PTR.h"

using namespace wqspcfg;
using namespace wqspcfg::meaning;
using C = CSpPTRRSV100RegInfo;

namespace {

// clang-format off

constexpr Setting kSettings[] = {
    Group(Rows<kRSV100Rows>),
    {key::Device, L"BankType", &C::m_dwBankType, 1, printer::kBankType, Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpPTRRSV100RegInfo, RSV100Printer, kSettings)

void CSpPTRRSV100RegInfo::SaveRetainBinCount()
{
    Saving(*this).Write(Rows<wqspcfg::kRetainBins>);
}
