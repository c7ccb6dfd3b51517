// Meanings that recur in many device models, written once.
#pragma once

namespace wqspcfg::meaning {

inline constexpr wchar_t kPort[] = L"serial port number";
inline constexpr wchar_t kBaudRate[] = L"serial speed in baud";
inline constexpr wchar_t kPowerOnOption[] = L"card in the reader at initialisation: 0 eject; 1 retain; 2 back to the read position; 3 leave";
inline constexpr wchar_t kCloseOption[] = L"card in the reader when the SP closes: 0 eject; 1 retain; 2 leave";
inline constexpr wchar_t kPowerOffOption[] = L"card in the reader at power loss: 0 leave; 1 eject; 2 retain";
inline constexpr wchar_t kDispenseBin1[] = L"card-unit number of physical bin 1";
inline constexpr wchar_t kDispenseBin2[] = L"card-unit number of physical bin 2";
inline constexpr wchar_t kRetainBin[] = L"card-unit number of the retain bin";
inline constexpr wchar_t kMaxSupplyCard[] = L"capacity of a supply bin, in cards";
inline constexpr wchar_t kSupplyBinLow[] = L"count at which a supply bin is nearly empty";
inline constexpr wchar_t kRetainBinStatus[] = L"retain-bin status policy: 0 the XFS standard; 1 the agricultural bank's super-counter interface";
inline constexpr wchar_t kMediaLatched[] = L"support the WFS_IDC_MEDIALATCHED status: 0 no; nonzero yes";
inline constexpr wchar_t kLogicalNameOfIDCReader[] = L"logical name of the card reader that the device opens through the XFS API; empty none";

// Sensors and indicators
inline constexpr wchar_t kPoweroffAutoShutdown[] = L"the terminal shuts down on mains failure: 0 no; nonzero yes";
inline constexpr wchar_t kUsePowerSwitch[] =
    L"power key: 0 there is none; 1 use the white power key; 2 use it and mask the state of the operator key";
inline constexpr wchar_t kUseSafeDoor[] = L"the safe door enters supervisor mode: 0 no; 1 yes";
inline constexpr wchar_t kKeepSupervisorCabinetOpen[] = L"an open front door keeps supervisor mode: 0 no; nonzero yes";
inline constexpr wchar_t kContinueBuzzerWithoutAudio[] =
    L"a set-indicator command with only the continue option selected keeps the default beep: 0 no; nonzero yes";
inline constexpr wchar_t kRearBackLightCtrl[] = L"the rear screen is kept lit: 0 no; nonzero yes";
inline constexpr wchar_t kFrontBackLightCtrl[] = L"the front screen is kept lit: 0 no; nonzero yes";
inline constexpr wchar_t kAllowUpsFlashBreakTime[] =
    L"a break of the internal UPS that lasts longer than this is reported to the card reader, in milliseconds";
inline constexpr wchar_t kUsePinSta[] = L"the keyboard light follows the state of the PIN pad: 0 no; nonzero yes";
inline constexpr wchar_t kUseKeySta[] = L"the keyboard light follows the state of the operator key: 0 no; nonzero yes";
inline constexpr wchar_t kUseCardSta[] = L"the keyboard light follows the state of the card reader: 0 no; nonzero yes";
inline constexpr wchar_t kUseProximity[] = L"the keyboard light follows the proximity sensor: 0 no; nonzero yes";
inline constexpr wchar_t kUseSafeAgent[] = L"an intelligent anti-skimming unit is used: 0 no; nonzero yes";
inline constexpr wchar_t kBeepOn[] = L"the anti-skimming unit beeps: 0 no; nonzero yes";
inline constexpr wchar_t kRelayAlarmOn[] = L"the anti-skimming unit switches the alarm relay: 0 no; nonzero yes";
inline constexpr wchar_t kBlindPoint[] = L"blinding sensitivity, 0 to 255: larger is more sensitive";
inline constexpr wchar_t kBlindAlarmTime[] = L"seconds of blinding before the alarm, 0 to 255";
inline constexpr wchar_t kCoverAlarmTime[] = L"seconds that an obstacle stays before the alarm, 0 to 65535";
inline constexpr wchar_t kAutoCancel[] = L"the alarm is cleared automatically: 0 no; nonzero yes";
inline constexpr wchar_t kRearUpDoorRelationCabinet[] =
    L"the state of the rear upper door is linked to the front cover: 0 no; nonzero yes";
inline constexpr wchar_t kDecorateDoorRelateCabinet[] =
    L"the state of the decoration door is linked to the front cover: 0 no; nonzero yes";
inline constexpr wchar_t kGuidLightOffOfReset[] = L"a reset switches the guidance lights off: 0 no; nonzero yes";
inline constexpr wchar_t kPolicyOfCabinetOpen[] =
    L"what happens when the front cover is opened: 0 nothing; 1 the card reader is notified; 2 the PIN pad is "
    L"notified; 4 the SIU beeps";
inline constexpr wchar_t kCabinetOpenBeepPath[] = L"sound file that is played while the front cover is open";
inline constexpr wchar_t kProximityPresentWaitTime[] =
    L"how long the proximity sensor must be covered before present is reported, in milliseconds: 0 at once";
inline constexpr wchar_t kManualResetSkimmerStatus[] =
    L"the state of the skimmer sensor is reset by hand only: 0 no; nonzero yes";
inline constexpr wchar_t kSetScreenSTByProximityST[] =
    L"the screen is switched by the state of the proximity sensor: 0 no; nonzero yes";
inline constexpr wchar_t kScreenPowerOffCoolDownTime[] = L"cool-down time before the screen is powered off";
inline constexpr wchar_t kIsDoorStChangeSwitchSt[] =
    L"a change of the door state changes the state of the operator switch: 0 no; nonzero yes";
inline constexpr wchar_t kSetCameraGuidLightOn[] =
    L"the guidance light of the camera is switched on: 0 no; nonzero yes";
inline constexpr wchar_t kUseAuraLight[] = L"an aura light is used: 0 no; nonzero yes";
inline constexpr wchar_t kPortScr[] = L"serial port number of the second controller";
inline constexpr wchar_t kBaudRateScr[] = L"serial speed of the second controller in baud";
inline constexpr wchar_t kCoolingTime[] = L"cooling time";
inline constexpr wchar_t kLightPolarity[] = L"level at which this light is on: 0 low; nonzero high";
inline constexpr wchar_t kSwitchPolarity[] = L"level at which this switch is closed: 0 low; nonzero high";

// PIN pads
inline constexpr wchar_t kPostKeyInGetData[] =
    L"plain-text entry also posts a Win32 key event for each key: 0 no; 1 yes";
inline constexpr wchar_t kPostKeyInGetPin[] = L"PIN entry also posts a Win32 key event for each key: 0 no; 1 yes";
inline constexpr wchar_t kDisabledPCKeyEventOfKey[] = L"keys for which no Win32 key event is posted";
inline constexpr wchar_t kEnableIdlePCKeyEvent[] =
    L"plain key input is possible while the keypad is idle: 0 no; nonzero yes";
inline constexpr wchar_t kClearAndBackspace[] =
    L"when Clear and Backspace are activated together, on a keyboard that has only one of them: 0 treat it as "
    L"BACKSPACE; 1 treat it as CLEAR";
inline constexpr wchar_t kReportErrOnPressMultiKey[] = L"several keys pressed at once are an error: 0 no; 1 yes";
inline constexpr wchar_t kReportLongKeyPressErr[] = L"a long key press is an error: 0 no; nonzero yes";
inline constexpr wchar_t kKeyPressInteval[] = L"how long a key is held down before it counts as a long press";
inline constexpr wchar_t kClearAsBackspaceInGetData[] =
    L"the Clear key acts as Backspace in plain-text entry: 0 no; 1 yes";
inline constexpr wchar_t kClearAsBackspaceInGetPin[] = L"the Clear key acts as Backspace in PIN entry: 0 no; 1 yes";
inline constexpr wchar_t kReadOneKeyToMaxForceEnter[] =
    L"without automatic end, reaching the maximum length forces an ENTER: 0 no; nonzero yes";
inline constexpr wchar_t kPageUpToXFSKey[] = L"XFS key that the page-up key is mapped to: 0 none";
inline constexpr wchar_t kPageDownToXFSKey[] = L"XFS key that the page-down key is mapped to: 0 none";
inline constexpr wchar_t kJstMacType[] = L"MAC algorithm: 0x00 X9.9; 0x01 X9.19; 0x02 special";
inline constexpr wchar_t kMac99[] =
    L"MAC algorithm, bits: 0x00 the keypad decides by the key length; 0x01 always ANSI X9.9; 0x10 only 8 bytes "
    L"per step";
inline constexpr wchar_t kHardware[] = L"hardware type of the keypad";
inline constexpr wchar_t kEnableBackSpace[] = L"the Backspace key is active: 0 no; nonzero yes";
inline constexpr wchar_t kBackspaceToHelp[] = L"the blank key is mapped to HELP: 0 no; 1 yes";
inline constexpr wchar_t kClearToBackspace[] = L"the Clear key is mapped to Backspace: 0 no; nonzero yes";
inline constexpr wchar_t kUseDesignatedName[] =
    L"key names: 0x00 decided by the version of the keypad; 0x01 always the designated names";
inline constexpr wchar_t kMaxEnDeCryptBlockLen[] =
    L"longest block that is encrypted or decrypted at once, in bytes: 0 decided by the version of the keypad";
inline constexpr wchar_t kFindRegKeyIndexByUse[] =
    L"registered keys are found: 0 by their fixed name; nonzero by their use";
inline constexpr wchar_t kMinPinLength[] = L"shortest PIN, in digits";
inline constexpr wchar_t kDelDuplicateKEK[] =
    L"a master key of the same name is deleted before one is imported: 0 no; nonzero yes";
inline constexpr wchar_t kDelDuplicateKEKSM[] =
    L"an SM master key of the same name is deleted before one is imported: 0 no; nonzero yes";
inline constexpr wchar_t kEllipseParamP[] = L"SM2 elliptic curve parameter p";
inline constexpr wchar_t kEllipseParamA[] = L"SM2 elliptic curve parameter a";
inline constexpr wchar_t kEllipseParamB[] = L"SM2 elliptic curve parameter b";
inline constexpr wchar_t kEllipseParamN[] = L"SM2 elliptic curve parameter n";
inline constexpr wchar_t kEllipseParamXg[] = L"SM2 elliptic curve parameter xG";
inline constexpr wchar_t kEllipseParamYg[] = L"SM2 elliptic curve parameter yG";
inline constexpr wchar_t kDerivationAlgorithms[] =
    L"key derivation algorithms reported as fwDerivationAlgorithms: 0 none; 0x0001 WFS_PIN_CHIP_ZKA";
inline constexpr wchar_t kPresentationAlgorithms[] =
    L"presentation algorithms reported as fwPresentationAlgorithms: 0 none; 0x0001 WFS_PIN_PRESENT_CLEAR";
inline constexpr wchar_t kIDKey[] =
    L"use of the ID key reported as fwIDKey: 0 none; 0x0001 WFS_PIN_IDKEYINITIALIZATION; 0x0002 WFS_PIN_IDKEYIMPORT";

} // namespace wqspcfg::meaning
