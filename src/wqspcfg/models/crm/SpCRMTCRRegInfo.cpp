#include "wqspcfg/models/crm/SpCRMTCRRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"

using namespace wqspcfg;
using C = CSpCRMTCRRegInfo;

namespace {

constexpr Key kSlot = key::Below(L"Cassette\\Hopper\\%c");

constexpr const wchar_t* kSlots[] = {L"A", L"B", L"C", L"D", L"E", L"R"};
constexpr DWORD kTypes[] = {0, 0, 0, 0, 2, 4};
constexpr DWORD kValues[] = {100, 50, 20, 10, 0, 0};

// clang-format off
constexpr Setting kSlotRows[] = {
    {kSlot, L"CasType", Element<&C::m_arSlot, &C::tagSlot::dwCasType>,
     0, L"cassette type: 0x00 recycle; 0xFFFFFFFF dispense only; 0x01 deposit only; 0x02 mixed; 0x04 reject", Saved,
     PerIteration(kTypes), OneOf, Format(L"0x%08X"), Label(L"%c.CasType")},
    {kSlot, L"CasValues", Element<&C::m_arSlot, &C::tagSlot::dwCasValues>,
     0, L"denomination: 100, 50, 20 or 10; 0 none", Saved, PerIteration(kValues), OneOf, Label(L"%c.CasValues")},
};

constexpr Setting kSettings[] = {
    Repeat(kSlots, Rows<kSlotRows>),
    {key::Capabilities, L"DriverCommandTimeOut", &C::m_dwDriverCommandTimeOut, 120000,
     L"time-out of a driver command in ms", Saved},
    {key::Capabilities, L"DispNotEnoughRet", &C::m_dwDispNotEnoughRet, 0, L"not documented", Saved},
    {key::Capabilities, L"CashOutAPI", &C::m_bCashOutAPI, 0,
     L"driver call for dispensing: 0 the intermediate-collect call, without a separate present; nonzero the dispense "
     L"call", Saved},
    {key::Capabilities, L"DisplayRJEveryCountInfo", &C::m_dwDisplayRJEveryCountInfo, 0,
     L"every count of the reject cassette is shown", Saved},
    {key::Capabilities, L"BlankRunIfLastCashInStatusErr", &C::m_dwBlankRunIfLastCashInStatusErr, 0,
     L"the device runs without notes when the last cash-in ended with an error", Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpCRMTCRRegInfo, CCRMRegInfo, kSettings)
