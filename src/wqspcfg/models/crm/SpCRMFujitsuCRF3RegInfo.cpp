#include "wqspcfg/models/crm/SpCRMFujitsuCRF3RegInfo.h"

#include "wqspcfg/models/shared/CoinRecyclerRows.h"

using namespace wqspcfg;
using C = CSpCRMFujitsuCRF3RegInfo;

namespace {

constexpr Key kNoteType = key::Below(L"NoteType");

// clang-format off
constexpr Setting kSettings[] = {
    Group(Rows<kCoinRecycler>),
    {key::Capabilities, L"Port",     &C::m_dwPort,     1,    meaning::kPort, Saved, RefersTo(Reference::SerialPort)},
    {key::Capabilities, L"BaudRate", &C::m_dwBaudRate, 9600, meaning::kBaudRate, Saved},
    {key::Capabilities, L"OnlyDepositTimeOut", &C::m_dwOnlyDepositTimeOut, 60000,
     L"time-out of a deposit in ms", Saved},
    {key::Capabilities, L"OnlyDispenseTimeOut", &C::m_dwOnlyDispenseTimeOut, 60000,
     meaning::kCoinDispenseTimeOut, Saved},
    {key::Capabilities, L"DepositRejectType", &C::m_bDepositRejectType, 0,
     L"coins are rejected to the slot when: 0 the retract cassette is full; nonzero a recycle cassette is full", Saved},
    {key::Capabilities, L"ActionWhenSpStart", &C::m_dwActionWhenSpStart, 0,
     L"coins at the start of the provider: 0 nothing; 1 retract; 2 reject; other numbers nothing", Saved},
    {key::Capabilities, L"AutoRecoverCount", &C::m_dwAutoRecoverCount, 3, meaning::kAutoRecoverCount, Saved},
    {kNoteType, L"100VerifyLevel", &C::m_dw100VerifyLevel, 3,
     L"counterfeit check of 1 yuan coins: level 0 to 5, higher accepts more easily; 0 acts as 3", Saved, Range(0, 5)},
    {kNoteType, L"50VerifyLevel", &C::m_dw50VerifyLevel, 3,
     L"counterfeit check of 5 jiao coins: level 0 to 5, higher accepts more easily; 0 acts as 3", Saved, Range(0, 5)},
    {kNoteType, L"New10VerifyLevel", &C::m_dwNew10VerifyLevel, 3,
     L"counterfeit check of new 1 jiao coins: level 0 to 5, higher accepts more easily; 0 acts as 3", Saved,
     Range(0, 5)},
    {kNoteType, L"10VerifyLevel", &C::m_dw10VerifyLevel, 3,
     L"counterfeit check of 1 jiao coins: level 0 to 5, higher accepts more easily; 0 acts as 3", Saved, Range(0, 5)},
    {kNoteType, L"Old10VerifyLevel", &C::m_dwOld10VerifyLevel, 3,
     L"counterfeit check of old 1 jiao coins: level 0 to 5, higher accepts more easily; 0 acts as 3", Saved,
     Range(0, 5)},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpCRMFujitsuCRF3RegInfo, CoinRecycler, kSettings)
