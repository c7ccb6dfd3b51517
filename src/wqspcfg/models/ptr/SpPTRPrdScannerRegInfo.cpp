#include "wqspcfg/models/ptr/SpPTRPrdScannerRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/PTR.h"

using namespace wqspcfg;
using namespace wqspcfg::meaning;
using C = CSpPTRPrdScannerRegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Control, L"BroadMediainserted", &C::m_bBroadMediainserted, 0,   printer::kBroadMediainserted, Saved},
    {key::Device,  L"DN.BCR_BARCODE",     &C::m_strDN_BCR_BARCODE,   L"", L"the vendor's device name", Saved},
    {key::Control, L"BeepFile", &C::m_strBeepFile, L"",
     printer::kBeepFile, Saved, RefersTo(Reference::File)},
    {key::Control, L"ReEnableScannerWaitTime", &C::m_dwReEnableScannerWaitTime, 57000,
     L"milliseconds after which the provider re-activates the scanner; the hardware switches itself off after 60 "
     L"seconds", Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpPTRPrdScannerRegInfo, CPTRRegInfo, kSettings)
