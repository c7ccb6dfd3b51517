// Meanings that recur in many device models, written once.
#pragma once

namespace wqspcfg::meaning {

inline constexpr wchar_t kPort[] = L"serial port number";
inline constexpr wchar_t kBaudRate[] = L"serial speed in baud";
inline constexpr wchar_t kPowerOnOption[] =
    L"card in the reader at initialisation: 0 eject; 1 retain; 2 back to the read position; 3 leave";
inline constexpr wchar_t kCloseOption[] = L"card in the reader when the SP closes: 0 eject; 1 retain; 2 leave";
inline constexpr wchar_t kPowerOffOption[] = L"card in the reader at power loss: 0 leave; 1 eject; 2 retain";
inline constexpr wchar_t kDispenseBin1[] = L"card-unit number of physical bin 1";
inline constexpr wchar_t kDispenseBin2[] = L"card-unit number of physical bin 2";
inline constexpr wchar_t kRetainBin[] = L"card-unit number of the retain bin";
inline constexpr wchar_t kMaxSupplyCard[] = L"capacity of a supply bin, in cards";
inline constexpr wchar_t kSupplyBinLow[] = L"count at which a supply bin is nearly empty";
inline constexpr wchar_t kRetainBinStatus[] =
    L"retain-bin status policy: 0 the XFS standard; 1 the agricultural bank's super-counter interface";
inline constexpr wchar_t kMediaLatched[] = L"support the WFS_IDC_MEDIALATCHED status: 0 no; nonzero yes";
inline constexpr wchar_t kLogicalNameOfIDCReader[] =
    L"logical name of the card reader that the device opens through the XFS API; empty none";

// Card readers.
inline constexpr wchar_t kPolicyOfSetMediaEntering[] = L"policy for setting the media status to entering";
inline constexpr wchar_t kUnPresentOfMoveCardManual[] =
    L"a card that is moved by hand is reported as not present: 0 no; nonzero yes";
inline constexpr wchar_t kNeedResetOfRecoverSkimmerSt[] =
    L"a reset is needed to recover from the skimmer status: 0 no; nonzero yes";
inline constexpr wchar_t kIsUseSLE4442[] = L"SLE4442 memory cards are used: 0 no; nonzero yes";
inline constexpr wchar_t kToReadPositionIfNoActionReset[] =
    L"a reset without an action moves the card to the read position: 0 no; nonzero yes";
inline constexpr wchar_t kTimeDelayOnline[] = L"delay in seconds before the device is reported online";
inline constexpr wchar_t kInitRelationEjectVolume[] = L"volume of the eject that goes with initialisation";
inline constexpr wchar_t kCardNameOfConn[] = L"name of the card reader to connect to";
inline constexpr wchar_t kHandleRepeatCard[] = L"a card that is presented again is handled: 0 no; nonzero yes";
inline constexpr wchar_t kRtnInvalidMediaOfRepeatCard[] =
    L"a card that is presented again is answered with invalid media: 0 no; nonzero yes";
inline constexpr wchar_t kSupportChipPower[] = L"the chip-power command is supported: 0 no; nonzero yes";
inline constexpr wchar_t kCheckCardInsertOfIdle[] = L"card insertion is checked while idle: 0 no; nonzero yes";
inline constexpr wchar_t kCpuCardType[] = L"type of the CPU card, as the device's driver numbers it";
inline constexpr wchar_t kTimesOfGetStIfSwitchLed[] = L"number of status queries when the LED is switched";
inline constexpr wchar_t kHandleRepeatCardPolicy[] = L"policy for a card that is presented again";
inline constexpr wchar_t kReadTracks[] =
    L"tracks that can be read, the sum of their XFS numbers: 1 track 1; 2 track 2; 4 track 3; 8 chip";
inline constexpr wchar_t kTranformIC2Hex[] = L"chip card data are converted to hexadecimal text: 0 no; nonzero yes";
inline constexpr wchar_t kIDCardImagePath[] = L"path of the identity card's image";
inline constexpr wchar_t kIDCardImagePathBeCopyed[] = L"path that the identity card's image is copied to";
inline constexpr wchar_t kIsUnContactFailed[] = L"contactless reading counts as failed: 0 no; nonzero yes";
inline constexpr wchar_t kGetImageFrontAndBack[] =
    L"images of the identity card's front and back are taken: 0 no; nonzero yes";
inline constexpr wchar_t kImageFrontPath[] = L"path of the image of the card's front";
inline constexpr wchar_t kImageBackPath[] = L"path of the image of the card's back";
inline constexpr wchar_t kTimeOutOfReadMagCard[] = L"time-out in seconds for reading a magnetic-stripe card";
inline constexpr wchar_t kCPUCardLogicName[] = L"logical name of the CPU card service";
inline constexpr wchar_t kSimReader[] = L"name of the reader for SIM and CPU cards";
inline constexpr wchar_t kIDCardLogicName[] = L"logical name of the identity card service";
inline constexpr wchar_t kCertRead[] = L"name of the reader for identity cards";
inline constexpr wchar_t kMagCardLogicName[] = L"logical name of the magnetic-stripe card service";
inline constexpr wchar_t kCardReader[] = L"name of the reader for magnetic-stripe cards";
inline constexpr wchar_t kICCardLogicName[] = L"logical name of the chip card service";
inline constexpr wchar_t kICCardReader[] = L"name of the reader for chip cards";
inline constexpr wchar_t kCardReaderType[] = L"type of the card reader, as the device's driver numbers it";
inline constexpr wchar_t kFindCardPolicy[] = L"policy for finding a card";
inline constexpr wchar_t kSendSrveDevStChanges[] =
    L"the service event for a changed device status is sent: 0 no; nonzero yes";
inline constexpr wchar_t kIsSaveNationCompleInfo[] =
    L"the complete information on the holder's nation is saved: 0 no; nonzero yes";
inline constexpr wchar_t kInforReturnFormat[] = L"format in which the card's information is returned";
inline constexpr wchar_t kImageSavePath[] = L"path that images are saved to";
inline constexpr wchar_t kScanFormat[] = L"format of the scanned images, as the device's driver numbers it";
inline constexpr wchar_t kReadIDCardInfo[] = L"the identity card's information is read: 0 no; nonzero yes";
inline constexpr wchar_t kIDMustEjectCardAfterScan[] =
    L"the identity card must be ejected after scanning: 0 no; nonzero yes";
inline constexpr wchar_t kChangeBySPDB[] = L"changed behaviour for one bank's application (SPDB): 0 no; nonzero yes";
inline constexpr wchar_t kSavingGetImagePathTime[] =
    L"time in seconds for getting the path of an image that is being saved";
inline constexpr wchar_t kIsChangeNoToNO[] = L"\"No\" becomes \"NO\": 0 no; nonzero yes";
inline constexpr wchar_t kUseNewFormatCfg[] = L"the new format configuration is used: 0 no; nonzero yes";
inline constexpr wchar_t kPadCharHex[] = L"padding character as a hexadecimal number";
inline constexpr wchar_t kTrack1Format[] = L"format of the data returned as track 1";
inline constexpr wchar_t kTrack2Format[] = L"format of the data returned as track 2";
inline constexpr wchar_t kTrack3Format[] = L"format of the data returned as track 3";
inline constexpr wchar_t kChipFormat[] = L"format of the data returned as chip data";
inline constexpr wchar_t kFrontImageFormat[] = L"format of the data returned as the front image";
inline constexpr wchar_t kBackImageFormat[] = L"format of the data returned as the back image";
inline constexpr wchar_t kTrackWMFormat[] = L"format of the data returned as the track WFS_IDC_TRACK_WM";
inline constexpr wchar_t kIDTypeDesc[] = L"description of the document type for identity cards";
inline constexpr wchar_t kFIDTypeDesc[] = L"description of the document type for foreigners' identity cards";
inline constexpr wchar_t kTracks2Unicode[] = L"track data are converted to Unicode: 0 no; nonzero yes";
inline constexpr wchar_t kIsSupRetain[] = L"retaining a card is supported: 0 no; nonzero yes";
inline constexpr wchar_t kSexFormat[] = L"format in which the holder's sex is returned";
inline constexpr wchar_t kMustEjectAfterScanTime[] = L"time in seconds after scanning until the card must be ejected";
inline constexpr wchar_t kWidthOfFrontBack[] = L"width of the front and back images in pixels";
inline constexpr wchar_t kHeightOfFrontBack[] = L"height of the front and back images in pixels";
inline constexpr wchar_t kSetMediaNotPresent[] = L"the media status is set to not present: 0 no; nonzero yes";
inline constexpr wchar_t kHeadPicPath[] = L"path of the picture of the holder's head";
inline constexpr wchar_t kFrontPicPath[] = L"path of the picture of the card's front";
inline constexpr wchar_t kBackPicPath[] = L"path of the picture of the card's back";
inline constexpr wchar_t kDeviceTypeOfDriver[] = L"device type, as the device's driver numbers it";

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

// Cash recyclers and coin devices.
inline constexpr wchar_t kInnerShutterCantClose[] =
    L"the inner shutter cannot close at the end of a deposit: 0 no error; 1 to 99 a hardware error; from 100 this "
    L"number is reported as the error code instead";
inline constexpr wchar_t kHwInitCount[] = L"most hardware initialisations by remote control: 0 unlimited";
inline constexpr wchar_t kRollbackDelayTimeout[] = L"rollback delay in ms";
inline constexpr wchar_t kTryRetract2CasE[] =
    L"when the retract cassette is full, retracts go to cassette E: 0 no; nonzero yes";
inline constexpr wchar_t kForceRetract2CasE[] = L"retracts always go to cassette E: 0 no; nonzero yes";
inline constexpr wchar_t kSetPOSNULLPosition[] =
    L"what a null position from the application means: 0 the input slot; 1 the output slot; 2 both";
inline constexpr wchar_t kStoreFirstCollect[] =
    L"deposit order of the cassettes: 0 E to A; 1 A to E; 2 adjusted by which cassettes are closed";
inline constexpr wchar_t kDispenseFirstDepart[] =
    L"dispense order of the cassettes: 0 A to E; 1 the priorities change when the first cassette cannot cover the "
    L"amount, so that one dispense does not use several cassettes";
inline constexpr wchar_t kTryCloseOutSht[] = L"interval between attempts to close the outer shutter, in ms";
inline constexpr wchar_t kDepartClose[] = L"a cassette that is pulled or plugged, and the non-15-note reject case, may "
                                          L"close separation physically: 0 no; nonzero yes";
inline constexpr wchar_t kCollectClose[] = L"a cassette that is pulled or plugged may close collection physically: 0 "
                                           L"no; 1 yes; 2 also when the separation of a dispense closes";
inline constexpr wchar_t kCasTypeFollowSlot[] = L"the cassette type belongs to: 0 the cassette; 1 the slot";
inline constexpr wchar_t kAddCasDataType[] =
    L"additions to the counts of a mixed cassette by denomination: 0 no; 1 yes";
inline constexpr wchar_t kUnitPhyPosName[] =
    L"names of the physical positions: 0 CassetteA and so on; 1 Cassette1 and so on";
inline constexpr wchar_t kUseCassetteF[] =
    L"cassette F is the reject cassette and retracts are not supported: 0 no; nonzero yes";
inline constexpr wchar_t kUseCassetteE[] =
    L"cassette E, which must be a mixed one, is the reject cassette: 0 no; nonzero yes";
inline constexpr wchar_t kSlotType[] = L"cassette type: high word the group (0x0004 group 4), low word the use: 0x0030 "
                                       L"recycle; 0x0010 dispense only; 0x0020 deposit only; 0x0040 mixed deposit";
inline constexpr wchar_t kSlotCasFull[] = L"distance to full as a code: 0 to 9 mean 50 x (code + 1) notes";
inline constexpr wchar_t kSlotCasNearEmpty[] =
    L"distance to nearly empty as a code: 0 to 9 mean 50 x (code + 1) notes; 80 to 89 mean 10 x (code - 79) notes";
inline constexpr wchar_t kOutShutterType[] =
    L"outer shutter: 0 ATM shutter; 1 VTM shutter valve, which must open before the inner shutter; 2 VTM outer shutter "
    L"made by Tarno; 3 outer shutter of an intelligent low counter; other numbers a virtual shutter";
inline constexpr wchar_t kVtmOutShtPort[] = L"port of the VTM shutter valve on the sensors-and-indicators device";
inline constexpr wchar_t kVtmOutShtCtrlIndex[] = L"index for opening and closing the VTM shutter valve on the "
                                                 L"sensors-and-indicators device: 0 to 15; any other number becomes 10";
inline constexpr wchar_t kVtmOutShtSafeDoorIndex[] =
    L"index of the safe door on the sensors-and-indicators device: 0 to 7; any other number is kept, and "
    L"VtmOutShtCtrlIndex becomes 5";
inline constexpr wchar_t kVtmOutShtStIndex[] = L"index of the status of the VTM shutter valve on the "
                                               L"sensors-and-indicators device: 0 to 7; any other number becomes 4";
inline constexpr wchar_t kVtmPolOfSafeDoor[] = L"polarity of the safe door: 0 as the hardware has it; 1 inverted";
inline constexpr wchar_t kInitType[] =
    L"initialisation: 0 chosen from the context; 1 normal; 2 maintenance; 3 remote; 4 forced";
inline constexpr wchar_t kWQVtmOutShtPort[] = L"port of the VTM shutter valve made by Tarno";
inline constexpr wchar_t kMaxItemsOfEscrow[] = L"capacity of the escrow in notes: 0 there is no escrow";
inline constexpr wchar_t kUseRestrictAmountByAPP[] =
    L"the amount limit of a deposit that the application publishes is used: 0 no; nonzero yes";
inline constexpr wchar_t kDisableCIMRetract[] = L"CIM retracts are disabled: 0 no; nonzero yes";
inline constexpr wchar_t kDisableCDMRetract[] = L"CDM retracts are disabled: 0 no; nonzero yes";
inline constexpr wchar_t kOutShutterLockType[] = L"type of the lock of the outer shutter";
inline constexpr wchar_t kRetractCashOfShutterIn[] = L"notes inside the shutter are retracted: 0 no; nonzero yes";
inline constexpr wchar_t kEnableAccountWhenVerifyFailed[] =
    L"notes are accounted when their validation failed: 0 no; nonzero yes";
inline constexpr wchar_t kContainerCanAsCashInOut[] =
    L"the transfer container after automatic replenishment: 0 takes no part in transactions, reported as a container; "
    L"1 takes part, reported as a container; 2 takes part, reported as a recycle cassette";
inline constexpr wchar_t kCanRejectCash[] =
    L"automatic clear-out and replenishment may produce rejects, bit set: 1 counting; 2 replenishing";
inline constexpr wchar_t kRetryWhenDepartBad[] = L"a note move is tried again when separation fails: 0 no; nonzero yes";
inline constexpr wchar_t kExtraMoveTimes[] = L"retries of a note move when rejects left the target with too few notes";
inline constexpr wchar_t kHandleBillNotMatch[] = L"denomination of a moved note does not match the cassette: 0 is "
                                                 L"ignored; 1 stops the move with an error; 2 stops the cassette";
inline constexpr wchar_t kRtNoItemIfNoCash[] =
    L"cash-in end without an accepted note returns no-items: 0 no; nonzero yes";
inline constexpr wchar_t kCheckEmptyOnOutSht[] =
    L"before validation the outer shutter is checked for notes left over, which takes effect only where the input "
    L"shutter stays open: 0 no; nonzero yes";
inline constexpr wchar_t kRestrictDepCntPath[] = L"registry path of the count limit of a deposit that the application "
                                                 L"publishes; the value may be a number or a text";
inline constexpr wchar_t kRestrictDepCntKey[] =
    L"value name of the count limit of a deposit that the application publishes";
inline constexpr wchar_t kRestrictDepAmtPath[] = L"registry path of the amount limit of a deposit that the application "
                                                 L"publishes; the value may be a number or a text";
inline constexpr wchar_t kRestrictDepAmtKey[] =
    L"value name of the amount limit of a deposit that the application publishes";
inline constexpr wchar_t kRetractWhenResetInputNull[] = L"a reset whose input is null retracts: 0 no; nonzero yes";
inline constexpr wchar_t kHandleDepRestrict0[] =
    L"a limit of 0 from the application: 0 the limits of the provider are used; 1 too-many-items is returned";
inline constexpr wchar_t kCoinCasFull[] = L"coins at which the hopper is full";
inline constexpr wchar_t kCoinCasNearFull[] = L"coins at which the hopper is nearly full";
inline constexpr wchar_t kCoinCasEmpty[] = L"coins at which the hopper is empty";
inline constexpr wchar_t kCoinCasNearEmpty[] = L"coins at which the hopper is nearly empty";
inline constexpr wchar_t kCoinType[] = L"denomination of the hopper: 0x100 recycle for 1 yuan; 0x050 recycle for 5 "
                                       L"jiao; 0x010 recycle for 1 jiao; 0x000 none";
inline constexpr wchar_t kCoinDispenseTimeOut[] = L"time-out of a dispense in ms";
inline constexpr wchar_t kAutoRecoverCount[] = L"most automatic recoveries after a fault";

} // namespace wqspcfg::meaning

namespace wqspcfg::meaning { // barcode readers

inline constexpr wchar_t kScanBeepFile[] = L"sound file played when data is scanned; empty plays nothing";

} // namespace wqspcfg::meaning

namespace wqspcfg::meaning::crd { // card dispensers

inline constexpr wchar_t kDevType[] = L"device type";
inline constexpr wchar_t kApProtocolType[] = L"type of the application protocol";
inline constexpr wchar_t kSupplyBinCount[] = L"number of supply bins";
inline constexpr wchar_t kRetainBinCount[] = L"number of retain bins";
inline constexpr wchar_t kSupplyBinMax[] = L"count at which a supply bin is full";
inline constexpr wchar_t kTimesToTryWhenFail[] = L"number of attempts when an operation fails";
inline constexpr wchar_t kAllowResetWithRetainOnFull[] =
    L"a reset that retains is allowed while the retain bin is full: 0 no; nonzero yes";
inline constexpr wchar_t kDispenseBin3[] = L"card-unit number of physical bin 3";
inline constexpr wchar_t kAllowRetainOfRetainBinErr[] =
    L"retaining allowed while the retain bin is faulty: 0 no; nonzero yes";
inline constexpr wchar_t kMoveTransPortCardOptionWhenReset[] = L"where a card in the transport goes at a reset";
inline constexpr wchar_t kMoveTransPortCardOptionWhenIDCDispense[] =
    L"where a card in the transport goes when dispensing through the card reader";
inline constexpr wchar_t kType[] = L"communication type";
inline constexpr wchar_t kMaxRetainCard[] = L"capacity of the retain bin, in cards";
inline constexpr wchar_t kRetainBinHigh[] = L"retain count at which the retain bin is nearly full";
inline constexpr wchar_t kSkimOfInsertCard[] = L"skim option when a card is inserted";
inline constexpr wchar_t kZEntryOfInsertCard[] = L"Z entry option when a card is inserted";
inline constexpr wchar_t kCheckModeOfInsertCard[] = L"check mode when a card is inserted";
inline constexpr wchar_t kCheckMode[] = L"check mode";
inline constexpr wchar_t kShutterActionOfInit[] = L"action of the shutter at initialisation";
inline constexpr wchar_t kConnectAfterHWError[] =
    L"the connection is made again after a hardware error: 0 no; nonzero yes";
inline constexpr wchar_t kOpenOption[] = L"what happens to a card in the device when the SP opens";
inline constexpr wchar_t kPolicyOfExtraSuppBinST[] = L"policy of the extra supply-bin status";
inline constexpr wchar_t kResetAndAgain[] = L"the device is reset and the operation tried again: 0 no; nonzero yes";
inline constexpr wchar_t kMaxSendUkeyCount[] = L"largest number of USB keys to send";
inline constexpr wchar_t kAllowDisWithRetainBinPhyFull[] =
    L"dispensing allowed while the retain bin is physically full: 0 no; nonzero yes";
inline constexpr wchar_t kAllowDisWithRetainBinLogicFull[] =
    L"dispensing allowed while the retain bin is full by its logical count: 0 no; nonzero yes";
inline constexpr wchar_t kSupplyBinIniCount[] = L"initial count of a supply bin";
inline constexpr wchar_t kRetainBinNumber[] = L"number of the retain bin";
inline constexpr wchar_t kSupplyBin1Number[] = L"number of supply bin 1";
inline constexpr wchar_t kDispenseBin1Number[] = L"number of dispense bin 1";
inline constexpr wchar_t kTreatyOfAp[] = L"protocol of the application";
inline constexpr wchar_t kDispenseTo[] = L"where a card is dispensed to";
inline constexpr wchar_t kReConnectSuccessOption[] =
    L"card in the reader after a successful reconnection: 0 eject; 1 retain; 2 leave";
inline constexpr wchar_t kAllowDispenseOfRetainBinErr[] =
    L"dispensing allowed while the retain bin is faulty: 0 no; nonzero yes";
inline constexpr wchar_t kReturnHardErrWhenSuppBinMiss[] =
    L"a missing supply bin: 0 gives the real result; 1 is reported as a hardware error";
inline constexpr wchar_t kChangeIDCStatusToBusy[] =
    L"while dispensing through the card reader: 0 real states; 1 the reader is reported busy and the dispenser online";

} // namespace wqspcfg::meaning::crd
// printers
namespace wqspcfg::meaning::printer {

// clang-format off
inline constexpr wchar_t kTimeOut[] = L"time-out in s";
inline constexpr wchar_t kReturnWord[] = L"characters that start a new line; empty the carriage return and line feed of the data";
inline constexpr wchar_t kMustBeBold[] = L"always print bold: 0 no; nonzero yes";
inline constexpr wchar_t kAutoReset[] = L"the device is reset without a command when it is in error: 0 no; nonzero yes";
inline constexpr wchar_t kCharSet[] = L"number of the character set; 0 the device's own";
inline constexpr wchar_t kSendFieldWarnningEvent[] = L"field warnings are sent as events: 0 no; nonzero yes";
inline constexpr wchar_t kPtrName[] = L"name of the printer in the operating system; empty the default printer";
inline constexpr wchar_t kPageHeight[] = L"height of a page";
inline constexpr wchar_t kPaperWidth[] = L"width of the paper";
inline constexpr wchar_t kPaperHeight[] = L"height of the paper";
inline constexpr wchar_t kOffsetValid[] = L"the offset given with a print command counts: 0 no; nonzero yes";
inline constexpr wchar_t kLineSpace[] = L"line height";
inline constexpr wchar_t kWordSpace[] = L"space between characters";
inline constexpr wchar_t kLeftSpace[] = L"space to the left of the print area";
inline constexpr wchar_t kUseFixFontSize[] = L"the size of FontSize is used whatever the form says: 0 no; nonzero yes";
inline constexpr wchar_t kFontSize[] = L"size of the print font";
inline constexpr wchar_t kUseCPI[] = L"the characters per inch of the form set the width of characters: 0 no; nonzero yes";
inline constexpr wchar_t kMustBeFontName[] = L"the font of FontName is used whatever the form says: 0 no; nonzero yes";
inline constexpr wchar_t kFontName[] = L"name of the print font";
inline constexpr wchar_t kRawDataAsBmp[] = L"raw data are printed as a picture: 0 no; nonzero yes";
inline constexpr wchar_t kRawDataWordWrap[] = L"raw data that run beyond the line are wrapped: 0 no; nonzero yes";
inline constexpr wchar_t kRawDataFontSize[] = L"size of the font for raw data";
inline constexpr wchar_t kRawDataFontName[] = L"name of the font for raw data";
inline constexpr wchar_t kUseImageStretch[] = L"pictures are stretched to the size of their field: 0 no; nonzero yes";
inline constexpr wchar_t kBlackColorRangeMax[] = L"largest value that counts as black when a picture is made black and white: 0 to 255";
inline constexpr wchar_t kFeedBeforePrint[] = L"paper feed before printing";
inline constexpr wchar_t kFeedAfterPrint[] = L"paper feed after printing";
inline constexpr wchar_t kSendMediaTakenEvent[] = L"the media-taken event is sent: 0 no; nonzero yes";
inline constexpr wchar_t kWaitMediaTakenTime[] = L"seconds after media went from entering to not present before the media-taken event is sent";
inline constexpr wchar_t kPrintIntervalTime[] = L"interval in ms between two print jobs";
inline constexpr wchar_t kPolicyOfLineSpace[] = L"policy for the line height; 0 the device's standard";
inline constexpr wchar_t kUseOneFormPrintManyKindsReceipt[] = L"one form serves to print several kinds of receipt: 0 no; nonzero yes";
inline constexpr wchar_t kAdjustPosY[] = L"adjustment of the vertical print position";
inline constexpr wchar_t kRawDataStyle[] = L"style in which raw data are printed; 0 the device's standard";
inline constexpr wchar_t kIgnoreInvalidData[] = L"invalid print data are ignored: 0 no; nonzero yes";
inline constexpr wchar_t kOpenMediaJamCheck[] = L"the check for jammed media is on: 0 no; nonzero yes";
inline constexpr wchar_t kAdobeToolPrint[] = L"PDF files are printed through the Adobe program: 0 no; nonzero yes";
inline constexpr wchar_t kCheckTotalTime[] = L"longest time in s for checking the media of a print job";
inline constexpr wchar_t kCheckNOMediaTime[] = L"time in s without media after which a print job's media count as absent";
inline constexpr wchar_t kPrintHtml[] = L"HTML files are printed: 0 no; nonzero yes";
inline constexpr wchar_t kPrintHtmlType[] = L"way in which HTML files are printed; 0 the standard one";
inline constexpr wchar_t kIsStamp[] = L"a stamping unit is fitted: 0 no; nonzero yes";
inline constexpr wchar_t kStampPort[] = L"serial port number of the stamping unit";
inline constexpr wchar_t kStampBaudRate[] = L"serial speed of the stamping unit in baud";
inline constexpr wchar_t kPosYOfFirstStamp[] = L"vertical position of the first stamp on the page";
inline constexpr wchar_t kPaperCount[] = L"number of sheets for the stamping unit";
inline constexpr wchar_t kStampNumber[] = L"number of stamps";
inline constexpr wchar_t kFirstYPos[] = L"vertical position of stamp 1";
inline constexpr wchar_t kSecondYPos[] = L"vertical position of stamp 2";
inline constexpr wchar_t kThirdYPos[] = L"vertical position of stamp 3";
inline constexpr wchar_t kStampMode[] = L"mode of the stamping unit; 0 the standard one";
inline constexpr wchar_t kOpenPaperOut[] = L"the paper output transport is used: 0 no; nonzero yes";
inline constexpr wchar_t kPaperOutPort[] = L"serial port number of the paper output transport";
inline constexpr wchar_t kRawDataParseID[] = L"profile by which raw data are parsed; 0 the standard one";
inline constexpr wchar_t kCheckInputParam[] = L"check the input parameters of commands: 0 no; nonzero yes";
inline constexpr wchar_t kSetTotalPagesBy[] = L"where the total number of pages is taken from; 0 the print job";
inline constexpr wchar_t kPrintStyleWithMediaStatusSet[] = L"how printing sets the media status; 0 the standard way";
inline constexpr wchar_t kWaitPrintJob[] = L"printing waits for the end of the print job: 0 no; nonzero yes";
inline constexpr wchar_t kPaperStatusStartIndex[] = L"index of the first paper source in the paper status";
inline constexpr wchar_t kMaxRetain[] = L"capacity of the retain bin";
inline constexpr wchar_t kHighRetainBin[] = L"count at which the retain bin is nearly full";
inline constexpr wchar_t kRetainBinCount[] = L"number of items in the retain bin";
inline constexpr wchar_t kScanResolution[] = L"scan resolution in dots per inch";
inline constexpr wchar_t kUsePrintLine[] = L"printing goes by line number: 0 no; nonzero yes";
inline constexpr wchar_t kPageLen[] = L"length of a page; 0 as the form says";
inline constexpr wchar_t kTopLen[] = L"length from the top of the page to the first line";
inline constexpr wchar_t kBlankLen[] = L"length of the blank in the middle of a page";
inline constexpr wchar_t kFirstOverLen[] = L"length by which the first page may be overrun";
inline constexpr wchar_t kSecondOverLen[] = L"length by which the second page may be overrun";
inline constexpr wchar_t kUseOneForm[] = L"one form serves for all pages: 0 no; nonzero yes";
inline constexpr wchar_t kStartLineNum[] = L"number of the first line";
inline constexpr wchar_t kMaxLineNum[] = L"number of lines on a page";
inline constexpr wchar_t kPowerOnOption[] = L"action at power on: 0 none; 1 eject the media; 2 retract them";
inline constexpr wchar_t kMaxRetract[] = L"capacity of the retract bin";
inline constexpr wchar_t kTopAdjustSpace[] = L"adjustment of the top margin";
inline constexpr wchar_t kLeftAdjustSpace[] = L"adjustment of the left margin";
inline constexpr wchar_t kForceRetract[] = L"retracting is forced: 0 no; nonzero yes";
inline constexpr wchar_t kTrack2[] = L"text for track 2 of the magnetic stripe";
inline constexpr wchar_t kTrack3[] = L"text for track 3 of the magnetic stripe";
inline constexpr wchar_t kRetractCount[] = L"number of items retracted";
inline constexpr wchar_t kKeepPaperStatusFull[] = L"the paper status stays full: 0 no; nonzero yes";
inline constexpr wchar_t kCharWidthFlag[] = L"width of characters; 0 normal";
inline constexpr wchar_t kResetCount[] = L"attempts to reset the device";
inline constexpr wchar_t kCharHeightFlag[] = L"height of characters; 0 normal";
inline constexpr wchar_t kLeftMargin[] = L"left margin";
inline constexpr wchar_t kCutMode[] = L"how the paper is cut; 0 the device's standard";
inline constexpr wchar_t kCutPos[] = L"position at which the paper is cut";
inline constexpr wchar_t kInitCount[] = L"attempts to initialise the device";
inline constexpr wchar_t kUseBlackFace[] = L"print in bold face: 0 no; nonzero yes";
inline constexpr wchar_t kInsertVertical[] = L"passbooks are inserted vertically: 0 no; nonzero yes";
inline constexpr wchar_t kOpenOption[] = L"action when the SP opens: 0 none; 1 eject the media; 2 retract them";
inline constexpr wchar_t kIsUseBlackMark[] = L"the black mark of the paper positions the cut: 0 no; nonzero yes";
inline constexpr wchar_t kPrintPos[] = L"position at which printing starts";
inline constexpr wchar_t kEnCharSpace[] = L"space between Latin characters";
inline constexpr wchar_t kChCharSpaceLeft[] = L"space to the left of Chinese characters";
inline constexpr wchar_t kChCharSpaceRight[] = L"space to the right of Chinese characters";
inline constexpr wchar_t kPrintTimeOut[] = L"time-out of printing in s";
inline constexpr wchar_t kRawDataFilePathStyle[] = L"how raw data name a file to be printed; 0 the standard way";
inline constexpr wchar_t kDevType[] = L"device variant; 0 the standard one";
inline constexpr wchar_t kFullCut[] = L"the paper is cut in full: 0 in part; nonzero in full";
inline constexpr wchar_t kCurLastCount[] = L"number of receipts that can still be printed on low paper";
inline constexpr wchar_t kUseCountWhenLow[] = L"receipts are counted while paper is low: 0 no; nonzero yes";
inline constexpr wchar_t kType[] = L"link: 0 serial; 1 USB";
inline constexpr wchar_t kUnderline[] = L"print underlined: 0 no; nonzero yes";
inline constexpr wchar_t kDoubleHeight[] = L"print in double height: 0 no; nonzero yes";
inline constexpr wchar_t kDoubleWidth[] = L"print in double width: 0 no; nonzero yes";
inline constexpr wchar_t kMustBeWordWrap[] = L"text that runs beyond the line is always wrapped: 0 no; nonzero yes";
inline constexpr wchar_t kEjectLength[] = L"length by which the paper is ejected";
inline constexpr wchar_t kCutWhenEject[] = L"an eject cuts the paper: 0 no; nonzero yes";
inline constexpr wchar_t kMaxCountWhenLow[] = L"number of receipts that can be printed from low paper on";
inline constexpr wchar_t kPrintDensity[] = L"print density; 0 the device's own";
inline constexpr wchar_t kPrintSpeed[] = L"print speed; 0 the device's own";
inline constexpr wchar_t kBeepFile[] = L"sound file played when data is scanned; empty plays nothing";
inline constexpr wchar_t kRealWidth[] = L"real width of the print area";
inline constexpr wchar_t kRealHeight[] = L"real height of the print area";
inline constexpr wchar_t kFeedBeforeCut[] = L"paper feed before the cut";
inline constexpr wchar_t kMinFeedLength[] = L"smallest length of a paper feed";
inline constexpr wchar_t kBroadMediainserted[] = L"the media-inserted event is broadcast: 0 no; nonzero yes";
inline constexpr wchar_t kBrushWait[] = L"time in s for which a swipe is waited for";
inline constexpr wchar_t kTrack1TiledName[] = L"name of the field for track 1";
inline constexpr wchar_t kTrack2TiledName[] = L"name of the field for track 2";
inline constexpr wchar_t kTrack3TiledName[] = L"name of the field for track 3";
inline constexpr wchar_t kAddNullToUnicodeFields[] = L"Unicode field data end with a null character: 0 no; nonzero yes";
inline constexpr wchar_t kRawDataRowBitCount[] = L"number of characters in a row of raw data; 0 as many as fit";
inline constexpr wchar_t kRawDataUseUnitMM[] = L"positions in raw data are in mm: 0 no; nonzero yes";
inline constexpr wchar_t kFormWidth[] = L"width of a form";
inline constexpr wchar_t kFormHeight[] = L"height of a form";
inline constexpr wchar_t kNewLineWhenOverWidth[] = L"text that runs beyond the width starts a new line: 0 no; nonzero yes";
inline constexpr wchar_t kMustBeCut[] = L"the paper is always cut after printing: 0 no; nonzero yes";
inline constexpr wchar_t kContinuePrintType[] = L"how consecutive print commands are joined; 0 not at all";
inline constexpr wchar_t kFieldPosYChange[] = L"change of the vertical position of fields";
inline constexpr wchar_t kMaxRetainCount[] = L"maximum number of tickets in the retain bin";
inline constexpr wchar_t kHighRetainCount[] = L"number at which the retain bin counts as nearly full";
inline constexpr wchar_t kThickness[] = L"print density";
inline constexpr wchar_t kAllOffsetX[] = L"horizontal offset of all form nodes";
inline constexpr wchar_t kAllOffsetY[] = L"vertical offset of all form nodes";
inline constexpr wchar_t kFieldsPrintAsText[] = L"the form fields printed as text, separated by \";\"; all others are printed as images";
inline constexpr wchar_t kRFIDPort[] = L"serial port number of the RFID reader";
inline constexpr wchar_t kWaitEnteringAfterEject[] = L"seconds to wait, after eject and opening the slot, for the exit to report entering";
inline constexpr wchar_t kWaitMNPAfterRetract[] = L"seconds to wait after a successful retract for media not present";
inline constexpr wchar_t kWaitMPAfterDispense[] = L"seconds to wait after a successful dispense for media present";
inline constexpr wchar_t kResetMode[] = L"0 software reset without action; 1 soft reset that clears the path; 2 the device must be restarted after a successful reset";
inline constexpr wchar_t kTextRotate[] = L"rotation of printed text in degrees: 0, 90, 180 or 270";
inline constexpr wchar_t kPicRotate[] = L"rotation of printed pictures in degrees: 0, 90, 180 or 270";
inline constexpr wchar_t kMustBeBoldWhenDoubleHigh[] = L"double height always prints bold: 0 no; 1 yes";
inline constexpr wchar_t kTryScanCount[] = L"attempts to scan the front and back images";
inline constexpr wchar_t kMaxPaperCount[] = L"maximum number of tickets in the supply bin";
inline constexpr wchar_t kHighPaperCount[] = L"number at which the supply bin counts as nearly full";
inline constexpr wchar_t kCompareCheckStartNo[] = L"compare the starting ticket number given by the application while printing: 0 no; 1 yes";
inline constexpr wchar_t kPrintTwoDimCodePic[] = L"print a two-dimensional code: 0 no; 1 yes";
inline constexpr wchar_t kSizeofQRCode[] = L"size of the two-dimensional code";
inline constexpr wchar_t kPrintMagCode[] = L"print the magnetic code: 0 no; 1 as a picture; 2 as text";
inline constexpr wchar_t kWhichBoxActive[] = L"the active supply bin: 1, 2 or 3";
inline constexpr wchar_t kSaveImageTime[] = L"days for which images are kept: 0 to 90";
inline constexpr wchar_t kSupplyBinCount[] = L"number of supply bins: 2 new device; 3 old device";
inline constexpr wchar_t kPhotoPath[] = L"folder of the photos taken for character recognition";
inline constexpr wchar_t kRawDataPrintTextAsBmp[] = L"raw-data printing prints plain text as a picture: 0 no; 1 yes";
inline constexpr wchar_t kBankType[] = L"bank profile: 1 Drodre; 2 Tograx; 3 Agricultural Bank of China Hebei";
inline constexpr wchar_t kCloseActionType[] = L"action when the SP closes: 0 none; 1 eject the media; 2 retract them";
inline constexpr wchar_t kResetActionType[] = L"action at a reset: 0 none; 1 eject the media; 2 retract them";
inline constexpr wchar_t kMustBeRetract[] = L"media left in the device are always retracted: 0 no; nonzero yes";
inline constexpr wchar_t kMustScanJPG[] = L"scanned pictures are always JPG files: 0 no; nonzero yes";
inline constexpr wchar_t kMatchLev[] = L"level of the fingerprint match";
inline constexpr wchar_t kPowerOffOption[] = L"action at power off: 0 none; 1 eject the media; 2 retract them";
inline constexpr wchar_t kSimCheckNo[] = L"ticket number to simulate";
inline constexpr wchar_t kSimRFIDData[] = L"RFID data to simulate";
// clang-format on

} // namespace wqspcfg::meaning::printer
