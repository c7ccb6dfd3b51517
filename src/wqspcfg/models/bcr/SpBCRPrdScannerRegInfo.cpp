#include "wqspcfg/models/bcr/SpBCRPrdScannerRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using C = CSpBCRPrdScannerRegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Device, L"DN.BCR_BARCODE", &C::m_strDN_BCR_BARCODE, L"",
     L"the vendor's device name", Saved, KeepWhenMissing},
    {key::Control, L"BeepFile", &C::m_strBeepFile, L"",
     meaning::kScanBeepFile, Saved, KeepWhenMissing, RefersTo(Reference::File)},
    {key::Control, L"ReEnableScannerWaitTime", &C::m_dwReEnableScannerWaitTime, 57000,
     L"milliseconds after which the provider re-activates the scanner, which switches itself off after 60 seconds",
     Saved, KeepWhenMissing},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpBCRPrdScannerRegInfo, CBCRRegInfo, kSettings)
