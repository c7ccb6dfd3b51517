// The settings of the note recyclers.
#pragma once

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/models/shared/CassetteKeys.h"
#include "wqspcfg/models/shared/NoteRecycler.h"
#include "wqspcfg/parts/meanings/CRM.h"

namespace wqspcfg {

inline constexpr Key kCassette = key::Below(L"Cassette");
inline constexpr Key kHopperE = key::Below(L"Cassette\\Hopper\\E");
inline constexpr Key kHopperF = key::Below(L"Cassette\\Hopper\\F");
inline constexpr Key kShutter = key::Below(L"WQShutter");
inline constexpr Key kReplenish = key::Below(L"REPLENISH");

inline constexpr auto kControlIndex =
    Normalize([](NoteRecycler&, DWORD dwIndex, bool) -> DWORD { return dwIndex >= 16 ? 10 : dwIndex; });

// An index out of range stays, and changes the control index instead.
inline constexpr auto kSafeDoorIndex = Normalize([](NoteRecycler& recycler, DWORD dwIndex, bool) -> DWORD {
    if (dwIndex >= 8) {
        recycler.m_dwVtmOutShtCtrlIndex = 5;
    }
    return dwIndex;
});

inline constexpr auto kStatusIndex =
    Normalize([](NoteRecycler&, DWORD dwIndex, bool) -> DWORD { return dwIndex >= 8 ? 4 : dwIndex; });

// clang-format off
inline constexpr Setting kNoteRecyclerStart[] = {
    {key::Capabilities, L"ActionOfInnerShutterCantCloseInCIM", &NoteRecycler::m_dwActionOfInnerShutterCantCloseInCIM, 1,
     meaning::kInnerShutterCantClose, Saved},
    {key::Capabilities, L"HwInitCount", &NoteRecycler::m_dwHwInitCount, 0, meaning::kHwInitCount, Saved},
    {key::Capabilities, L"RollbackDelayTimeout", &NoteRecycler::m_dwRollbackDelayTimeout, 0,
     L"rollback delay in ms", Saved},
    {key::Capabilities, L"TryRetract2CasE", &NoteRecycler::m_dwTryRetract2CasE, 0,
     L"when the retract cassette is full, retracts go to cassette E", Saved},
};
inline constexpr Setting kNoteRecyclerCassettes[] = {
    {key::Capabilities, L"StoreFirstCollect", &NoteRecycler::m_dwStoreFirstCollect, 0,
     L"deposit order of the cassettes: 0 E to A; 1 A to E; 2 adjusted by which cassettes are closed", Saved, OneOf},
    {key::Capabilities, L"DispenseFirstDepart", &NoteRecycler::m_dwDispenseFirstDepart, 0,
     L"dispense order of the cassettes: 0 A to E; 1 the priorities change when the first cassette cannot cover the "
     L"amount, so that one dispense does not use several cassettes", Saved, OneOf},
    {key::IdleInterval, L"TryCloseOutSht", &NoteRecycler::m_dwTryCloseOutSht, 3000,
     L"interval between attempts to close the outer shutter, in ms", Saved},
    {kCassette, L"DepartClose", &NoteRecycler::m_dwDepartClose, 0,
     L"a cassette that is pulled or plugged, and the non-15-note reject case, may close separation physically", Saved},
    {kCassette, L"CollectClose", &NoteRecycler::m_dwCollectClose, 0,
     L"a cassette that is pulled or plugged may close collection physically: 0 no; 1 yes; 2 also when the separation "
     L"of a dispense closes", Saved, OneOf},
    {key::Hopper, L"CasTypeFollowSlot", &NoteRecycler::m_dwCasTypeFollowSlot, 1,
     meaning::kCasTypeFollowSlot, Saved, OneOf},
};
inline constexpr Setting kNoteRecyclerUnitPhyPosName[] = {
    {key::Hopper, L"UnitPhyPosName", &NoteRecycler::m_dwUnitPhyPosName, 0, meaning::kUnitPhyPosName, Saved, OneOf},
};
inline constexpr Setting kNoteRecyclerUseCassetteE[] = {
    {kHopperE, L"UseCassetteEAsRJCAS", &NoteRecycler::m_dwUseCassetteEAsRJCAS, 0, meaning::kUseCassetteE, Saved},
};
// Of each slot; Types has the cassette type of each.
template <class C, const DWORD* Types>
inline constexpr Setting kNoteSlot[] = {
    {key::HopperSlot, L"Type", Element<&C::m_arSlot, &tagCassetteSlot::dwType>,
     0, meaning::kSlotType, Saved, PerIteration(Types), Format(L"0x%08X"), Label(L"%s.Type")},
    {key::HopperSlot, L"CasFull", Element<&C::m_arSlot, &tagCassetteSlot::dwCasFull>,
     2, L"distance to full as a code: 0 to 9 mean 50 x (code + 1) notes", Saved, OneOf, Label(L"%s.CasFull")},
    {key::HopperSlot, L"CasNearEmpty", Element<&C::m_arSlot, &tagCassetteSlot::dwCasNearEmpty>,
     0, L"distance to nearly empty as a code: 0 to 9 mean 50 x (code + 1) notes; 80 to 89 mean 10 x (code - 79) notes",
     Saved, OneOf, Label(L"%s.CasNearEmpty")},
};
inline constexpr Setting kNoteRecyclerShutter[] = {
    {key::Capabilities, L"OutShutterType", &NoteRecycler::m_dwOutShutterType, 0,
     L"outer shutter: 0 ATM shutter; 1 VTM shutter valve, which must open before the inner shutter; 2 VTM outer "
     L"shutter made by Tarno; 3 outer shutter of an intelligent low counter; other numbers a virtual shutter", Saved},
    {key::Comm, L"VtmOutShtPort", &NoteRecycler::m_dwVtmOutShtPort, 3,
     L"port of the VTM shutter valve on the sensors-and-indicators device", Saved},
    {key::Comm, L"VtmOutShtCtrlIndex", &NoteRecycler::m_dwVtmOutShtCtrlIndex, 2,
     L"index for opening and closing the VTM shutter valve on the sensors-and-indicators device: 0 to 15; any other "
     L"number becomes 10", Saved, Range(0, 15), kControlIndex},
    {key::Comm, L"VtmOutShtSafeDoorIndex", &NoteRecycler::m_dwVtmOutShtSafeDoorIndex, 3,
     L"index of the safe door on the sensors-and-indicators device: 0 to 7; any other number is kept, and "
     L"VtmOutShtCtrlIndex becomes 5", Saved, Range(0, 7), kSafeDoorIndex},
    {key::Comm, L"VtmOutShtStIndex", &NoteRecycler::m_dwVtmOutShtStIndex, 2,
     L"index of the status of the VTM shutter valve on the sensors-and-indicators device: 0 to 7; any other number "
     L"becomes 4", Saved, Range(0, 7), kStatusIndex},
};
inline constexpr Setting kNoteRecyclerInit[] = {
    {key::Capabilities, L"InitType", &NoteRecycler::m_dwInitType, 0,
     L"initialisation: 0 chosen from the context; 1 normal; 2 maintenance; 3 remote; 4 forced", Saved, OneOf},
    {kShutter, L"WQVtmOutShtPort", &NoteRecycler::m_dwWQVtmOutShtPort, 1,
     L"port of the VTM shutter valve made by Tarno", Saved},
};
inline constexpr Setting kNoteRecyclerReplenish[] = {
    {kReplenish, L"ContainerCanAsCashInOut", &NoteRecycler::m_dwContainerCanAsCashInOut, 0,
     L"the transfer container after automatic replenishment: 0 takes no part in transactions, reported as a "
     L"container; 1 takes part, reported as a container; 2 takes part, reported as a recycle cassette", Saved, OneOf},
    {kReplenish, L"CanRejectCash", &NoteRecycler::m_dwCanRejectCash, 3,
     L"automatic clear-out and replenishment may produce rejects, bit set: 1 counting; 2 replenishing", Saved},
    {kReplenish, L"RetryWhenDepartBad", &NoteRecycler::m_dwRetryWhenDepartBad, 0,
     L"a note move is tried again when separation fails", Saved},
    {kReplenish, L"ExtraMoveTimesWhenReceiveNotEnough", &NoteRecycler::m_dwExtraMoveTimesWhenReceiveNotEnough, 2,
     L"retries of a note move when rejects left the target with too few notes", Saved},
    {kReplenish, L"HandleBillNotMatchCasValues", &NoteRecycler::m_dwHandleBillNotMatchCasValues, 1,
     L"denomination of a moved note does not match the cassette: 0 is ignored; 1 stops the move with an error; 2 "
     L"stops the cassette", Saved, OneOf},
};

inline constexpr Setting kWQNoteRecyclerBeforeSlots[] = {
    Group(Rows<kNoteRecyclerStart>),
    {key::Capabilities, L"ForceRetract2CasE", &WQNoteRecycler::m_dwForceRetract2CasE, 0,
     L"retracts always go to cassette E", Saved},
    {key::Capabilities, L"SetPOSNULLPosition", &WQNoteRecycler::m_dwSetPOSNULLPosition, 0,
     L"what a null position from the application means: 0 the input slot; 1 the output slot; 2 both", Saved, OneOf},
    Group(Rows<kNoteRecyclerCassettes>),
    {key::Hopper, L"AddCasDataType", &WQNoteRecycler::m_dwAddCasDataType, 0,
     L"additions to the counts of a mixed cassette by denomination: 0 no; 1 yes", Saved},
    Group(Rows<kNoteRecyclerUnitPhyPosName>),
    {kHopperF, L"UseCassetteFAndNotSupportRtract", &WQNoteRecycler::m_dwUseCassetteFAndNotSupportRtract, 0,
     L"cassette F is the reject cassette and retracts are not supported", Saved},
    Group(Rows<kNoteRecyclerUseCassetteE>),
};
inline constexpr Setting kWQNoteRecyclerAfterSlots[] = {
    Group(Rows<kNoteRecyclerShutter>),
    {key::Comm, L"VtmPolOfSafeDoor", &WQNoteRecycler::m_dwVtmPolOfSafeDoor, 0,
     L"polarity of the safe door: 0 as the hardware has it; 1 inverted", Saved, OneOf},
    Group(Rows<kNoteRecyclerInit>),
    {key::Capabilities, L"MaxItemsOfEscrow", &WQNoteRecycler::m_dwMaxItemsOfEscrow, 200,
     L"capacity of the escrow in notes: 0 there is no escrow", Saved},
    {key::Capabilities, L"UseRestrictAmountOfDepositByAPP", &WQNoteRecycler::m_dwUseRestrictAmountOfDepositByAPP, 0,
     L"the amount limit of a deposit that the application publishes is used", Saved},
    {key::Capabilities, L"DisableCIMRetract", &WQNoteRecycler::m_dwDisableCIMRetract, 0,
     L"CIM retracts are disabled", Saved},
    {key::Capabilities, L"DisableCDMRetract", &WQNoteRecycler::m_dwDisableCDMRetract, 0,
     L"CDM retracts are disabled", Saved},
    {key::Capabilities, L"OutShutterLockType", &WQNoteRecycler::m_dwOutShutterLockType, 0, L"not documented", Saved},
    {key::Capabilities, L"RetractCashOfShutterIn", &WQNoteRecycler::m_dwRetractCashOfShutterIn, 0,
     L"notes inside the shutter are retracted", Saved},
    {key::Capabilities, L"EnableAccountWhenVerifyFailed", &WQNoteRecycler::m_dwEnableAccountWhenVerifyFailed, 0,
     L"notes are accounted when their validation failed", Saved},
    Group(Rows<kNoteRecyclerReplenish>),
    {key::Capabilities, L"RtNoItemIfNoCashAccepedInCIE", &WQNoteRecycler::m_dwRtNoItemIfNoCashAccepedInCIE, 0,
     L"cash-in end without an accepted note returns no-items", Saved},
    {key::Capabilities, L"CheckEmptyOnOutSht", &WQNoteRecycler::m_dwCheckEmptyOnOutSht, 1,
     L"before validation the outer shutter is checked for notes left over, which takes effect only where the input "
     L"shutter stays open", Saved},
    {key::Capabilities, L"RestrictDepCntPathByAP", &WQNoteRecycler::m_strRestrictDepCntPathByAP, L"",
     L"registry path of the count limit of a deposit that the application publishes; the value may be a number or a "
     L"text", Saved},
    {key::Capabilities, L"RestrictDepCntKeyByAP", &WQNoteRecycler::m_strRestrictDepCntKeyByAP, L"",
     L"value name of the count limit of a deposit that the application publishes", Saved},
    {key::Capabilities, L"RestrictDepAmtPathByAP", &WQNoteRecycler::m_strRestrictDepAmtPathByAP, L"",
     L"registry path of the amount limit of a deposit that the application publishes; the value may be a number or a "
     L"text", Saved},
    {key::Capabilities, L"RestrictDepAmtKeyByAP", &WQNoteRecycler::m_strRestrictDepAmtKeyByAP, L"",
     L"value name of the amount limit of a deposit that the application publishes", Saved},
    {key::Capabilities, L"RetractWhenResetInputNull", &WQNoteRecycler::m_dwRetractWhenResetInputNull, 0,
     L"a reset whose input is null retracts", Saved},
    {key::Capabilities, L"HandleDepRestrict0ByAp", &WQNoteRecycler::m_dwHandleDepRestrict0ByAp, 0,
     L"a limit of 0 from the application: 0 the limits of the provider are used; 1 too-many-items is returned", Saved,
     OneOf},
};
// clang-format on

} // namespace wqspcfg
