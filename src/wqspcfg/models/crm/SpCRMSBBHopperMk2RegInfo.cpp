#include "wqspcfg/models/crm/SpCRMSBBHopperMk2RegInfo.h"

#include "wqspcfg/models/shared/CoinRecyclerRows.h"

using namespace wqspcfg;
using C = CSpCRMSBBHopperMk2RegInfo;

namespace {

constexpr const wchar_t* kSlots[] = {L"A", L"B", L"C"};

// clang-format off
constexpr Setting kSettings[] = {
    {key::Hopper, L"UnitPhyPosName", &C::m_dwUnitPhyPosName, 0, meaning::kUnitPhyPosName, Saved, OneOf},
    Repeat(kSlots, Rows<kCoinHopper<C>>),
    {key::Comm, L"Port", &C::m_dwPort, 1,
     meaning::kPort, Saved, RefersTo(Reference::SerialPort)},
    {key::Comm,         L"BaudRate",         &C::m_dwBaudRate,         9600,  meaning::kBaudRate, Saved},
    {key::Capabilities, L"DispenseTimeOut",  &C::m_dwDispenseTimeOut,  60000, meaning::kCoinDispenseTimeOut, Saved},
    {key::Capabilities, L"AutoRecoverCount", &C::m_dwAutoRecoverCount, 3,     meaning::kAutoRecoverCount, Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpCRMSBBHopperMk2RegInfo, CCRMRegInfo, kSettings)
