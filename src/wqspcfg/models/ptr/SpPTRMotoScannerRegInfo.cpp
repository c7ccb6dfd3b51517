#include "wqspcfg/models/ptr/SpPTRMotoScannerRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/PTR.h"

using namespace wqspcfg;
using namespace wqspcfg::meaning;
using C = CSpPTRMotoScannerRegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Device, L"BeepFile", &C::m_strBeepFile, L"", printer::kBeepFile, Saved, RefersTo(Reference::File)},
    {key::Device, L"IDCMode", &C::m_bIDCMode, 0,
     L"the scanner serves as a card reader: 0 no; nonzero yes", Saved},
    {key::Device, L"NRMode",   &C::m_dwNRMode,   0,  printer::kNotDocumented, Saved},
    {key::Device, L"Patience", &C::m_dwPatience, 30, L"patience in s while waiting for data", Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpPTRMotoScannerRegInfo, CPTRRegInfo, kSettings)
