#include "wqspcfg/models/mcr/SpMCRCF66RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"

using namespace wqspcfg;
using C = CSpMCRCF66RegInfo;

namespace {

constexpr auto kSerialOrUsb = LogAs([](C&, DWORD dwType) -> DWORD { return dwType == 1 ? 1 : 2; });

// clang-format off
constexpr Setting kSettings[] = {
    {key::Comm, L"Type", &C::m_dwType, 2, L"communication: 1 serial; 2 USB", Saved, OneOf, kSerialOrUsb},
    {key::Comm, L"Port", &C::m_dwPort, 4, L"port number", Saved, RefersTo(Reference::SerialPort),
     RefersIf([](const C& c) -> bool { return c.m_dwType == 1; })},
    {key::Device, L"SyncEjectCard", &C::m_dwSyncEjectCard, 1,
     L"ejecting: 0 asynchronous; nonzero synchronous", AsSwitch},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpMCRCF66RegInfo, CMCRRegInfo, kSettings, {}, {}, nullptr, /*savesBases=*/false)
