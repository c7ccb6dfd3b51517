#include "wqspcfg/models/crd/SpCRDWQ0501RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/CRD.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using C = CSpCRDWQ0501RegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Comm, L"Port", &C::m_dwPort, 1,
     meaning::kPort, Saved, RefersTo(Reference::SerialPort)},
    {key::Comm,    L"BaudRate",       &C::m_dwBaudRate,       9600, meaning::kBaudRate, Saved},
    {key::Control, L"WholeBoxCount",  &C::m_dwWholeBoxCount,  100,  L"count of the whole box", Saved},
    {key::Control, L"SingelBoxCount", &C::m_dwSingelBoxCount, 20,   L"count of a single box", Saved},
    {key::Control, L"SupplyBinLow",   &C::m_dwSupplyBinLow,   5,    meaning::kSupplyBinLow, Saved},
    {key::Control, L"RetainCount",    &C::m_dwRetainCount,    0,    L"retain count", Saved},
    {key::Control, L"RetainBinHigh", &C::m_dwRetainBinHigh, 15,
     L"retain count at which the retain bin is nearly full", Saved},
    {key::Control, L"RetainBinFull", &C::m_dwRetainBinFull, 20, L"retain count at which the retain bin is full", Saved},
    {key::Device, L"CheckNOSaveDir", &C::m_strCheckNOSaveDir, L"",
     L"directory in which check numbers are saved", Saved, RefersTo(Reference::Directory)},
    {key::Device, L"CheckNOPicSaveDir", &C::m_strCheckNOPicSaveDir, L"",
     L"directory in which pictures of check numbers are saved", Saved, RefersTo(Reference::Directory)},
    {key::Device, L"CheckNOLocalSaveDir", &C::m_strCheckNOLocalSaveDir, L"",
     L"local directory in which check numbers are saved", Saved, RefersTo(Reference::Directory)},
    {key::Control, L"SupplyBinMax", &C::m_dwSupplyBinMax, 100, meaning::crd::kSupplyBinMax, Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpCRDWQ0501RegInfo, CCRDRegInfo, kSettings)
