#include "wqspcfg/models/idc/SpIDCPrdScannerRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/IDC.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using C = CSpIDCPrdScannerRegInfo;

namespace {

constexpr Key kCapability = key::Below(L"Capability");

// clang-format off
constexpr Setting kSettings[] = {
    {key::Device, L"DN.BCR_BARCODE", &C::m_strDN_BCR_BARCODE, L"", L"the vendor's device name", Saved},
    {key::Control, L"BeepFile", &C::m_strBeepFile, L"",
     meaning::kScanBeepFile, Saved, RefersTo(Reference::File)},
    {key::Control, L"ReEnableScannerWaitTime", &C::m_dwReEnableScannerWaitTime, 57000,
     L"milliseconds after which the provider re-activates the scanner, which switches itself off after 60 seconds",
     Saved},
    {kCapability, L"ReadTracks", &C::m_dwReadTracks, 7, meaning::kReadTracks, Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpIDCPrdScannerRegInfo, CIDCRegInfo, kSettings)
