#include "wqspcfg/models/crd/SpCRDUKeyK1503RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/CRD.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using C = CSpCRDUKeyK1503RegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Comm, L"Port",     &C::m_dwPort,     1,    meaning::kPort, Saved, RefersTo(Reference::SerialPort)},
    {key::Comm, L"BaudRate", &C::m_dwBaudRate, 9600, meaning::kBaudRate, Saved},
    {key::Control, L"UsefulSupplyBinCounter", &C::m_dwUsefulSupplyBinCounter, 3,
     L"number of usable supply bins", Saved},
    {key::Control, L"RetainBinCounter",     &C::m_dwRetainBinCounter,     1, meaning::crd::kRetainBinCount, Saved},
    {key::Control, L"SupplyBinCounter",     &C::m_dwSupplyBinCounter,     3, meaning::crd::kSupplyBinCount, Saved},
    {key::Control, L"PowerOnOption",        &C::m_dwPowerOnOption,        1, meaning::kPowerOnOption, Saved, OneOf},
    {key::Control, L"UsefulKbaoBinCounter", &C::m_dwUsefulKbaoBinCounter, 2, L"number of usable Kbao bins", Saved},
    {key::Control, L"UserfulKtokenBinCounter", &C::m_dwUserfulKtokenBinCounter, 1,
     L"number of usable Ktoken bins", Saved},
    {key::Control, L"KbaoCounter",     &C::m_dwKbaoCounter,     0, L"count of Kbao keys", Saved},
    {key::Control, L"ABinKbaoCounter", &C::m_dwABinKbaoCounter, 0, L"count of Kbao keys in bin A", Saved},
    {key::Control, L"KtokenCounter",   &C::m_dwKtokenCounter,   0, L"count of Ktoken keys", Saved},
    {key::Control, L"AShoveDistance",  &C::m_dwAShoveDistance,  0, L"shove distance of bin A", Saved},
    {key::Control, L"BShoveDistance",  &C::m_dwBShoveDistance,  0, L"shove distance of bin B", Saved},
    {key::Control, L"CShoveDistance",  &C::m_dwCShoveDistance,  0, L"shove distance of bin C", Saved},
    {key::Control, L"ResetAndAganin",  &C::m_bResetAndAganin,   0, meaning::crd::kResetAndAgain, Saved},
    {key::Control, L"SupplyBinHigh", &C::m_dwSupplyBinHigh, 90,
     L"count at which a supply bin is nearly full", Saved},
    {key::Control, L"MaxSupplyBinCount", &C::m_dwMaxSupplyBinCount, 100, L"largest count of a supply bin", Saved},
    {key::Control, L"MaxSendUkeyCount",  &C::m_dwMaxSendUkeyCount,  1,   meaning::crd::kMaxSendUkeyCount, Saved},
    {key::Control, L"SensorHigh",        &C::m_dwSensorHigh,        0,   meaning::kNotDocumented, Saved},
    {key::Control, L"ShowPhyStatus", &C::m_bShowPhyStatus, 0,
     L"the physical status is shown: 0 no; nonzero yes", Saved},
    {key::Control, L"ReadKbaoMsg", &C::m_bReadKbaoMsg, 0,
     L"the information of a Kbao key is read: 0 no; nonzero yes", Saved},
    {key::Control, L"ReadKtokenMsg", &C::m_bReadKtokenMsg, 0,
     L"the information of a Ktoken key is read: 0 no; nonzero yes", Saved},
    {key::Control, L"SaveKbaoCounter", &C::m_bSaveKbaoCounter, 0,
     L"the counter of Kbao keys is saved: 0 no; nonzero yes", Saved},
    {key::Control, L"DevType",    &C::m_dwDevType,    0, meaning::kNotDocumented, Saved},
    {key::Control, L"CcbStmType", &C::m_dwCcbStmType, 0, L"type of one bank's self-service terminal", Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpCRDUKeyK1503RegInfo, CCRDRegInfo, kSettings)
