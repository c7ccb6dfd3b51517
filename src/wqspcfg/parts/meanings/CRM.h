// Texts that the cash recyclers share.
#pragma once

namespace wqspcfg::meaning {

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
