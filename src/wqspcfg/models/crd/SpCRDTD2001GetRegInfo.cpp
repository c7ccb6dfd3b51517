#include "wqspcfg/models/crd/SpCRDTD2001GetRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"

using namespace wqspcfg;
using C = CSpCRDTD2001GetRegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Control, L"BluetoothPassWord", &C::m_strBluetoothPassWord, L"246810",
     L"six-digit Bluetooth pairing password", Saved, Secret},
    {key::Control, L"BluetoothTypicalityName", &C::m_strBluetoothTypicalityName, L"TD2001",
     L"characteristic string of the Bluetooth device name", Saved},
    {key::Control, L"CurrentCardBoxName", &C::m_strCurrentCardBoxName, L"", L"name of the bin in use", Saved},
    {key::Control, L"WaitCardTime", &C::m_dwWaitCardTime, 30,
     L"time to wait for a card to be moved out or taken, in seconds", Saved},
    {key::Control, L"IdleRefreshStatusOption", &C::m_dwIdleRefreshStatusOption, 1,
     L"bins refreshed while idle: 0 all; 1 those the application uses; 2 only the current one", Saved, OneOf},
    {key::Control, L"RemoveDispenseCardUnit", &C::m_bRemoveDispenseCardUnit, 1,
     L"a bin that has dispensed may be removed: 0 no; nonzero yes", Saved},
    {key::Control, L"MaxCount", &C::m_dwMaxCount, 20, L"capacity of a bin, in cards", Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpCRDTD2001GetRegInfo, CCRDRegInfo, kSettings)
