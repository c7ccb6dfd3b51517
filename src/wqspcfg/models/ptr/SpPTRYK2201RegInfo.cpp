#include "wqspcfg/models/ptr/SpPTRYK2201RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/PTR.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using namespace wqspcfg::meaning;
using C = CSpPTRYK2201RegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Comm, L"Port", &C::m_dwPort, 1,
     kPort, Saved, RefersTo(Reference::SerialPort)},
    {key::Control, L"TimeOut",         &C::m_dwTimeOut,          30,        printer::kTimeOut, Saved},
    {key::Control, L"BrushWait",       &C::m_dwBrushWait,        30,        printer::kBrushWait, Saved},
    {key::Device,  L"Track1TiledName", &C::m_strTrack1TiledName, L"Track1", printer::kTrack1TiledName, Saved},
    {key::Device,  L"Track2TiledName", &C::m_strTrack2TiledName, L"Track2", printer::kTrack2TiledName, Saved},
    {key::Device,  L"Track3TiledName", &C::m_strTrack3TiledName, L"Track3", printer::kTrack3TiledName, Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpPTRYK2201RegInfo, CPTRRegInfo, kSettings)
