// Texts that the sensors and indicators share.
#pragma once

namespace wqspcfg::meaning {

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

} // namespace wqspcfg::meaning
