#include "wqspcfg/models/ptr/SpPTRKdeKtx32XExeRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using namespace wqspcfg::meaning;
using C = CSpPTRKdeKtx32XExeRegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Comm, L"Port", &C::m_dwPort, 1, kPort, Saved, RefersTo(Reference::SerialPort)},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpPTRKdeKtx32XExeRegInfo, CPTRRegInfo, kSettings)
