#include "wqspcfg/models/ptr/SpPTRPrdMCReadeRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/PTR.h"

using namespace wqspcfg;
using namespace wqspcfg::meaning;
using C = CSpPTRPrdMCReadeRegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Device, L"DN.IDC_SWIPE", &C::m_strDN_IDC_SWIPE, L"",
     L"name of the device driver module of the swipe card reader", Saved},
    {key::Control, L"BrushWait",       &C::m_dwBrushWait,        30,        printer::kBrushWait, Saved},
    {key::Device,  L"Track1TiledName", &C::m_strTrack1TiledName, L"Track1", printer::kTrack1TiledName, Saved},
    {key::Device,  L"Track2TiledName", &C::m_strTrack2TiledName, L"Track2", printer::kTrack2TiledName, Saved},
    {key::Device,  L"Track3TiledName", &C::m_strTrack3TiledName, L"Track3", printer::kTrack3TiledName, Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpPTRPrdMCReadeRegInfo, CPTRRegInfo, kSettings)
