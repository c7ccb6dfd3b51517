#include "wqspcfg/models/crd/SpCRDWQTYM1200RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/models/shared/CardDispenserPartsRows.h"
#include "wqspcfg/parts/meanings/CRD.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using C = CSpCRDWQTYM1200RegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Comm, L"Port", &C::m_dwPort, 1,
     meaning::kPort, Saved, RefersTo(Reference::SerialPort), RefersIf([](const C& c) -> bool {
         return c.m_dwBluetoothOption == 0;
     })},
    {key::Comm, L"BaudRate",          &C::m_dwBaudRate,           9600, meaning::kBaudRate, Saved},
    {key::Comm, L"BluetoothName",     &C::m_strBluetoothName,     L"",  L"Bluetooth device name", Saved},
    {key::Comm, L"BluetoothPassWord", &C::m_strBluetoothPassWord, L"",  L"Bluetooth pairing password", Saved, Secret},
    {key::Comm, L"BluetoothOption", &C::m_dwBluetoothOption, 0,
     L"link: 0 serial; nonzero Bluetooth", Saved, AsSwitch},
    {key::Control, L"PowerOnOption",  &C::m_dwPowerOnOption,  1, meaning::kPowerOnOption, Saved, OneOf},
    {key::Control, L"CloseOption",    &C::m_dwCloseOption,    2, meaning::kCloseOption, Saved, OneOf},
    {key::Control, L"PowerOffOption", &C::m_dwPowerOffOption, 0, meaning::kPowerOffOption, OneOf},
    Group(Rows<kTwoBinRows>),
    {key::Control, L"AllowRetainOfRetainBinErr", &C::m_bAllowRetainOfRetainBinErr, 0,
     meaning::crd::kAllowRetainOfRetainBinErr, Saved},
    {key::Control, L"ReConnectSuccessOption", &C::m_dwReConnectSuccessOption, 2,
     meaning::crd::kReConnectSuccessOption, Saved, OneOf},
    {key::Control, L"DevType", &C::m_dwDevType, 1200,
     L"device type: 2200 Tianyi dispenser together with a Sankyo dispenser; 1200 Tianyi 1200 dispenser", Saved, OneOf},
    {key::Control, L"LogicalNameOfIDCReader", &C::m_strLogicalNameOfIDCReader, L"",
     L"logical name of the card reader that the 2200 device opens through the XFS API; empty none",
     Saved, RefersTo(Reference::LogicalService)},
    {key::Control, L"ForceChipInReadRawDataParam", &C::m_bForceChipInReadRawDataParam, 0,
     L"WFS_IDC_CHIP is added to the read-raw-data parameters sent to that reader: 0 no; nonzero yes", Saved},
    {key::Control, L"ErrorWhenEmptyDispenseBin", &C::m_bErrorWhenEmptyDispenseBin, 0,
     L"an empty bin is reported as an error: 0 no; nonzero yes", Saved},
    {key::Control, L"SupplyBinMissing", &C::m_bSupplyBinMissing, 0,
     L"supply bins have presence sensors: 0 no; nonzero yes", Saved},
    {key::Control, L"CheckRetainBinDeviceFull", &C::m_bCheckRetainBinDeviceFull, 1,
     L"the hardware retain-bin-full sensor is checked: 0 no; nonzero yes", Saved},
    {key::Control, L"MoveCardOptionWhenCardHookClear", &C::m_dwMoveCardOptionWhenCardHookClear, 1,
     L"where a card goes when a card-hook error is cleared: 0 the reader; nonzero the retain bin", Saved},
    {key::Control, L"MoveCardOptionWhenTransPortErr", &C::m_dwMoveCardOptionWhenTransPortErr, 1,
     L"where a card left in the transport goes: 0 the reader; nonzero the retain bin", Saved},
    {key::Control, L"SpdbfromOneWhenNotChooseSupplyBin", &C::m_dwSpdbfromOneWhenNotChooseSupplyBin, 0,
     L"for one bank's application, dispense from bin 1 when no bin is chosen: 0 no; nonzero yes", Saved, AsSwitch},
    {key::Control, L"ReturnHardErrWhenSuppBinMiss", &C::m_dwReturnHardErrWhenSuppBinMiss, 0,
     meaning::crd::kReturnHardErrWhenSuppBinMiss, OneOf},
    {key::Control, L"ChangeIDCStatusToBusy", &C::m_dwChangeIDCStatusToBusy, 0,
     meaning::crd::kChangeIDCStatusToBusy, OneOf},
    {key::Control, L"AllowDispenseWhenSupplyBinErr", &C::m_dwAllowDispenseWhenSupplyBinErr, 0,
     L"dispense even when the bin parameter is wrong (none or several chosen) for a single-bin dispense: 0 no; 1 yes",
     OneOf},
};

constexpr const wchar_t* kSaved[] = {
    L"PowerOnOption", L"CloseOption", L"Port", L"BaudRate", L"BluetoothName", L"BluetoothPassWord",
    L"BluetoothOption", L"DispenseBin1", L"DispenseBin2", L"RetainBin", L"SupplyBinLow", L"MaxSupplyCard",
    L"RetainBinStatus", L"NeedSupportMediaLatched", L"AllowDispenseOfRetainBinErr", L"AllowRetainOfRetainBinErr",
    L"ForceChipInReadRawDataParam", L"ErrorWhenEmptyDispenseBin", L"ReConnectSuccessOption", L"DevType",
    L"LogicalNameOfIDCReader", L"SupplyBinMissing", L"CheckRetainBinDeviceFull", L"MoveCardOptionWhenCardHookClear",
    L"MoveCardOptionWhenTransPortErr", L"SpdbfromOneWhenNotChooseSupplyBin"};
// clang-format on
constexpr auto kSaveOrder = SaveOrder<kSettings, kSaved>;

} // namespace

WQSPCFG_SETTINGS(CSpCRDWQTYM1200RegInfo, TwoBinDispenser, kSettings, kSaveOrder)
