#include "wqspcfg/models/ptr/SpPTRYK2201RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/PTR.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using C = CSpPTRYK2201RegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Comm,    L"Port",            &C::m_dwPort,             1,         meaning::kPort, Saved},
    {key::Control, L"TimeOut",         &C::m_dwTimeOut,          30,        meaning::printer::kTimeOut, Saved},
    {key::Control, L"BrushWait",       &C::m_dwBrushWait,        30,        meaning::printer::kBrushWait, Saved},
    {key::Device,  L"Track1TiledName", &C::m_strTrack1TiledName, L"Track1", meaning::printer::kTrack1TiledName, Saved},
    {key::Device,  L"Track2TiledName", &C::m_strTrack2TiledName, L"Track2", meaning::printer::kTrack2TiledName, Saved},
    {key::Device,  L"Track3TiledName", &C::m_strTrack3TiledName, L"Track3", meaning::printer::kTrack3TiledName, Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpPTRYK2201RegInfo, CPTRRegInfo, kSettings)
