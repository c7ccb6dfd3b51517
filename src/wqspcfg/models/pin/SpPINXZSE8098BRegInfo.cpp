#include "wqspcfg/models/pin/SpPINXZSE8098BRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/PIN.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using C = CSpPINXZSE8098BRegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Device, L"PostWin32PCKeyEventInGetData", &C::m_dwPostWin32PCKeyEventInGetData, 0,
     meaning::kPostKeyInGetData, Saved, OneOf},
    {key::Device, L"PostWin32PCKeyEventInGetPin", &C::m_dwPostWin32PCKeyEventInGetPin, 0,
     meaning::kPostKeyInGetPin, Saved, OneOf},
    {key::Device, L"DisabledPCKeyEventOfKey", &C::m_strDisabledPCKeyEventOfKey, L"",
     meaning::kDisabledPCKeyEventOfKey, Saved},
    {key::Comm, L"Port", &C::m_dwPort, 1,
     meaning::kPort, Saved, RefersTo(Reference::SerialPort)},
    {key::Comm, L"BaudRate", &C::m_dwBaudRate, 9600,
     meaning::kBaudRate, Saved},
    {key::Comm, L"MachineType", &C::m_dwMachineType, 1,
     L"the device uses the F35 interface: 0 no; 1 yes", Saved, OneOf},
    {key::Device, L"CrytDESECBtoSM", &C::m_dwCrytDESECBtoSM, 0,
     L"the DES ECB crypt mode is carried out with the SM algorithm: 0 no; 1 yes", Saved, OneOf},
    {key::Device, L"CrytDESCBCtoSM", &C::m_dwCrytDESCBCtoSM, 0,
     L"the DES CBC crypt mode is carried out with the SM algorithm: 0 no; 1 yes", Saved, OneOf,
     Label(L"CrytDESECBtoSM")},
    {key::Device, L"PressKeyTimeOut", &C::m_dwPressKeyTimeOut, 60,
     L"long-press time-out, 1 to 125", Saved, Range(1, 125)},
    {key::Device, L"MacType", &C::m_dwMacType, 1,
     L"MAC algorithm: 0 X9.9; 1 X9.19", Saved, OneOf},
    {key::Device, L"AtiveClearAndBaskSpaceOption", &C::m_dwAtiveClearAndBaskSpaceOption, 0,
     meaning::kClearAndBackspace, Saved, OneOf},
    {key::Device, L"DerivationAlgorithms", &C::m_dwDerivationAlgorithms, 0,
     meaning::kDerivationAlgorithms, Saved},
    {key::Device, L"PresentationAlgorithms", &C::m_dwPresentationAlgorithms, 0,
     meaning::kPresentationAlgorithms, Saved},
    {key::Device, L"IDKey", &C::m_dwIDKey, 0,
     meaning::kIDKey, Saved},
    {key::Device, L"AtivePageUpPageDownInGetData", &C::m_bAtivePageUpPageDownInGetData, 1,
     L"page up and page down are active in plain-text entry: 0 no; nonzero yes", Saved},
    {key::Device, L"EarlyTerminateEnterToMaxLen", &C::m_bEarlyTerminateEnterToMaxLen, 0,
     L"ENTER below the maximum length does not end PIN entry: 0 it does; nonzero it does not", Saved},
    {key::Device, L"PageUpToFDK", &C::m_bPageUpToFDK, 0,
     L"the XFS key of the page-up key is an FDK: 0 no; nonzero yes", Saved},
    {key::Device, L"PageUpToXFSKey", &C::m_dwPageUpToXFSKey, 0,
     meaning::kPageUpToXFSKey, Saved},
    {key::Device, L"PageDownToFDK", &C::m_bPageDownToFDK, 0,
     L"the XFS key of the page-down key is an FDK: 0 no; nonzero yes", Saved},
    {key::Device, L"PageDownToXFSKey", &C::m_dwPageDownToXFSKey, 0,
     meaning::kPageDownToXFSKey, Saved},
    {key::Device, L"LoadKeyEncKeyOfCryptCmd", &C::m_bLoadKeyEncKeyOfCryptCmd, 0,
     L"the crypt command loads the key-encryption key: 0 no; nonzero yes", Saved},
    {key::Device, L"ReadOneKeyToMaxForceEnter", &C::m_bReadOneKeyToMaxForceEnter, 0,
     meaning::kReadOneKeyToMaxForceEnter, Saved},
    {key::Device, L"CBHBSM", &C::m_dwCBHBSM, 0,
     L"SM option of one bank's application", Saved},
    {key::Device, L"UseDefaultRSAPublicAndPrivteKey", &C::m_bUseDefaultRSAPublicAndPrivteKey, 0,
     L"the default RSA public and private keys are used: 0 no; nonzero yes"},
    {key::Device, L"EnableIdlePCKeyEvent", &C::m_bEnableIdlePCKeyEvent, 0,
     meaning::kEnableIdlePCKeyEvent},
    {key::Device, L"EnableXZlog", &C::m_bEnableXZlog, 0,
     L"the log of the manufacturer's library is written: 0 no; nonzero yes"},
    {key::Device, L"CheckBaudRate", &C::m_bCheckBaudRate, 0,
     L"the serial speed is checked: 0 no; nonzero yes"},
    {key::Device, L"Algorithms", &C::m_dwAlgorithms, 0,
     L"algorithms that the keypad offers"},
    {key::Device, L"ConnectFDKBoard", &C::m_bConnectFDKBoard, 0,
     L"a board with FDKs is connected: 0 no; nonzero yes"},
};

constexpr const wchar_t* kSaved[] = {
    L"PostWin32PCKeyEventInGetData", L"PostWin32PCKeyEventInGetPin", L"DisabledPCKeyEventOfKey", L"Port", L"BaudRate",
    L"MachineType", L"CrytDESECBtoSM", L"CrytDESCBCtoSM", L"PressKeyTimeOut", L"MacType",
    L"AtiveClearAndBaskSpaceOption", L"DerivationAlgorithms", L"PresentationAlgorithms", L"IDKey",
    L"AtivePageUpPageDownInGetData", L"EarlyTerminateEnterToMaxLen", L"PageUpToFDK", L"PageUpToXFSKey",
    L"PageDownToFDK", L"LoadKeyEncKeyOfCryptCmd", L"ReadOneKeyToMaxForceEnter", L"PageDownToXFSKey", L"CBHBSM"};
// clang-format on
constexpr auto kSaveOrder = SaveOrder<kSettings, kSaved>;

} // namespace

WQSPCFG_SETTINGS(CSpPINXZSE8098BRegInfo, CPINRegInfo, kSettings, kSaveOrder)
