#include "wqspcfg/models/ptr/SpPTRCTZDP330RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/PTR.h"

using namespace wqspcfg;
using namespace wqspcfg::meaning;
using C = CSpPTRCTZDP330RegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Comm,   L"UsbPath",    &C::m_strUsbPath,   L"", L"path of the USB device; empty the first one found", Saved},
    {key::Device, L"LineHeight", &C::m_dwLineHeight, 30,  printer::kLineSpace, Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpPTRCTZDP330RegInfo, CPTRRegInfo, kSettings)
