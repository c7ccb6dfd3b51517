#include "wqspcfg/models/ptr/SpPTRNewLandRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/PTR.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using namespace wqspcfg::meaning;
using C = CSpPTRNewLandRegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Device,  L"BroadMediainserted", &C::m_bBroadMediainserted, 0, printer::kBroadMediainserted, Saved},
    {key::Control, L"DevType",            &C::m_dwDevType,           0, L"link: 0 USB; 1 serial", Saved},
    {key::Comm, L"Port", &C::m_dwPort, 1,
     kPort, Saved, RefersTo(Reference::SerialPort),
     RefersIf([](const C& c) -> bool { return c.m_dwDevType == 1; })},
    {key::Comm,   L"BaudRate",     &C::m_dwBaudRate,     115200, kBaudRate, Saved},
    {key::Device, L"GetdataTimes", &C::m_dwGetdataTimes, 1,      L"number of data reads", Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpPTRNewLandRegInfo, CPTRRegInfo, kSettings)
