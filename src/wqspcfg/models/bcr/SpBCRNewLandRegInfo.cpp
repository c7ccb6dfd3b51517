#include "wqspcfg/models/bcr/SpBCRNewLandRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using C = CSpBCRNewLandRegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Control, L"DevType", &C::m_dwDevType, 0,
     L"communication type: 0 USB; 1 serial", Saved, KeepWhenMissing, OneOf},
    {key::Comm, L"Port", &C::m_dwPort, 1,
     meaning::kPort, Saved, RefersTo(Reference::SerialPort),
     RefersIf([](const C& c) -> bool { return c.m_dwDevType == 1; })},
    {key::Comm,   L"BaudRate",     &C::m_dwBaudRate,     115200, meaning::kBaudRate, Saved},
    {key::Device, L"GetdataTimes", &C::m_dwGetdataTimes, 1,      L"number of data reads", Saved, KeepWhenMissing},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpBCRNewLandRegInfo, CBCRRegInfo, kSettings)
