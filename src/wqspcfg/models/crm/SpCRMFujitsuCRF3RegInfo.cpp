#include "wqspcfg/models/crm/SpCRMFujitsuCRF3RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/CRM.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using C = CSpCRMFujitsuCRF3RegInfo;

namespace {

constexpr Key kHopper = key::Below(L"Cassette\\Hopper");
constexpr Key kNoteType = key::Below(L"NoteType");
constexpr Key kSlot = key::Below(L"Cassette\\Hopper\\%c");

constexpr const wchar_t* kSlots[] = {L"A", L"B", L"C", L"R"};
constexpr DWORD kTypes[] = {0x100, 0x050, 0x010, 0x000};

// clang-format off
constexpr Setting kSlotRows[] = {
    {kSlot, L"CasFull",      Element<&C::m_arSlot, &tagCoinRecycleHopper::dwCasFull>,      500, meaning::kCoinCasFull, Saved, Label(L"%c.CasFull")},
    {kSlot, L"CasNearFull",  Element<&C::m_arSlot, &tagCoinRecycleHopper::dwCasNearFull>,  450, meaning::kCoinCasNearFull, Saved, Label(L"%c.CasNearFull")},
    {kSlot, L"CasEmpty",     Element<&C::m_arSlot, &tagCoinRecycleHopper::dwCasEmpty>,     0, meaning::kCoinCasEmpty, Saved, Label(L"%c.CasEmpty")},
    {kSlot, L"CasNearEmpty", Element<&C::m_arSlot, &tagCoinRecycleHopper::dwCasNearEmpty>, 50, meaning::kCoinCasNearEmpty, Saved, Label(L"%c.CasNearEmpty")},
    {kSlot, L"Type",         Element<&C::m_arSlot, &tagCoinRecycleHopper::dwType>,         0, meaning::kCoinType, Saved, PerIteration(kTypes), Format(L"0x%03X"), Label(L"%c.Type")},
};

constexpr Setting kSettings[] = {
    {kHopper, L"UnitPhyPosName", &C::m_dwUnitPhyPosName, 0, meaning::kUnitPhyPosName, Saved, OneOf},
    Repeat(kSlots, kSlotRows),
    {key::Capabilities, L"Port",                &C::m_dwPort,                1,     meaning::kPort, Saved},
    {key::Capabilities, L"BaudRate",            &C::m_dwBaudRate,            9600,  meaning::kBaudRate, Saved},
    {key::Capabilities, L"OnlyDepositTimeOut",  &C::m_dwOnlyDepositTimeOut,  60000, L"time-out of a deposit in ms", Saved},
    {key::Capabilities, L"OnlyDispenseTimeOut", &C::m_dwOnlyDispenseTimeOut, 60000, meaning::kCoinDispenseTimeOut, Saved},
    {key::Capabilities, L"DepositRejectType",   &C::m_dwDepositRejectType,   0,     L"coins are rejected to the slot when: 0 the retract cassette is full; nonzero a recycle cassette is full", Saved},
    {key::Capabilities, L"ActionWhenSpStart",   &C::m_dwActionWhenSpStart,   0,     L"coins at the start of the provider: 0 nothing; 1 retract; 2 reject; other numbers nothing", Saved},
    {key::Capabilities, L"AutoRecoverCount",    &C::m_dwAutoRecoverCount,    3,     meaning::kAutoRecoverCount, Saved},
    {kNoteType,         L"100VerifyLevel",      &C::m_dw100VerifyLevel,      3,     L"counterfeit check of 1 yuan coins: level 0 to 5, higher accepts more easily; 0 acts as 3", Saved, Range(0, 5)},
    {kNoteType,         L"50VerifyLevel",       &C::m_dw50VerifyLevel,       3,     L"counterfeit check of 5 jiao coins: level 0 to 5, higher accepts more easily; 0 acts as 3", Saved, Range(0, 5)},
    {kNoteType,         L"New10VerifyLevel",    &C::m_dwNew10VerifyLevel,    3,     L"counterfeit check of new 1 jiao coins: level 0 to 5, higher accepts more easily; 0 acts as 3", Saved, Range(0, 5)},
    {kNoteType,         L"10VerifyLevel",       &C::m_dw10VerifyLevel,       3,     L"counterfeit check of 1 jiao coins: level 0 to 5, higher accepts more easily; 0 acts as 3", Saved, Range(0, 5)},
    {kNoteType,         L"Old10VerifyLevel",    &C::m_dwOld10VerifyLevel,    3,     L"counterfeit check of old 1 jiao coins: level 0 to 5, higher accepts more easily; 0 acts as 3", Saved, Range(0, 5)},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpCRMFujitsuCRF3RegInfo, CCRMRegInfo, kSettings)
