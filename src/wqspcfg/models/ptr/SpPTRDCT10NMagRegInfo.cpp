#include "wqspcfg/models/ptr/SpPTRDCT10NMagRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/PTR.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using namespace wqspcfg::meaning;
using C = CSpPTRDCT10NMagRegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Comm, L"Port", &C::m_dwPort, 1,
     kPort, Saved, RefersTo(Reference::SerialPort)},
    {key::Comm,   L"Baudrate",        &C::m_dwBaudrate,         9600,      kBaudRate, Saved},
    {key::Device, L"Track1TiledName", &C::m_strTrack1TiledName, L"Track1", printer::kTrack1TiledName, Saved},
    {key::Device, L"Track2TiledName", &C::m_strTrack2TiledName, L"Track2", printer::kTrack2TiledName, Saved},
    {key::Device, L"Track3TiledName", &C::m_strTrack3TiledName, L"Track3", printer::kTrack3TiledName, Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpPTRDCT10NMagRegInfo, CPTRRegInfo, kSettings)
