#include "wqspcfg/models/bcr/SpBCRSUPERlead4100SRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using C = CSpBCRSUPERlead4100SRegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Comm, L"DevType", &C::m_dwDevType, 0,
     L"communication type: 1 serial; 0 USB", Saved, KeepWhenMissing, OneOf},
    {key::Comm, L"Port", &C::m_dwPort, 1,
     meaning::kPort, Saved, KeepWhenMissing, RefersTo(Reference::SerialPort),
     RefersIf([](const C& c) -> bool { return c.m_dwDevType == 1; })},
    {key::Comm, L"BaudRate", &C::m_dwBaudRate, 9600, meaning::kBaudRate, Saved, KeepWhenMissing},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpBCRSUPERlead4100SRegInfo, CBCRRegInfo, kSettings)
