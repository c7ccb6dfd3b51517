#pragma once

#include "wqspcfg/classes/CRMRegInfo.h"
#include "wqspcfg/parts/CassetteSlot.h"

namespace wqspcfg {

// What the note recyclers have in common.
class NoteRecycler : public CCRMRegInfo
{
  public:
    using CCRMRegInfo::CCRMRegInfo;

    DWORD m_dwActionOfInnerShutterCantCloseInCIM{};
    DWORD m_dwHwInitCount{};
    DWORD m_dwRollbackDelayTimeout{};
    DWORD m_dwTryRetract2CasE{};
    DWORD m_dwStoreFirstCollect{};
    DWORD m_dwDispenseFirstDepart{};
    DWORD m_dwTryCloseOutSht{};
    DWORD m_dwDepartClose{};
    DWORD m_dwCollectClose{};
    DWORD m_dwCasTypeFollowSlot{};
    DWORD m_dwUnitPhyPosName{};
    DWORD m_dwUseCassetteEAsRJCAS{};
    DWORD m_dwOutShutterType{};
    DWORD m_dwVtmOutShtPort{};
    DWORD m_dwVtmOutShtCtrlIndex{};
    DWORD m_dwVtmOutShtSafeDoorIndex{};
    DWORD m_dwVtmOutShtStIndex{};
    DWORD m_dwInitType{};
    DWORD m_dwWQVtmOutShtPort{};
    DWORD m_dwContainerCanAsCashInOut{};
    DWORD m_dwCanRejectCash{};
    DWORD m_dwRetryWhenDepartBad{};
    DWORD m_dwExtraMoveTimesWhenReceiveNotEnough{};
    DWORD m_dwHandleBillNotMatchCasValues{};
};

// What those with seven and with twelve slots have in common besides.
class WQNoteRecycler : public NoteRecycler
{
  public:
    using NoteRecycler::NoteRecycler;

    DWORD m_dwForceRetract2CasE{};
    DWORD m_dwSetPOSNULLPosition{};
    DWORD m_dwAddCasDataType{};
    DWORD m_dwUseCassetteFAndNotSupportRtract{};
    DWORD m_dwVtmPolOfSafeDoor{};
    DWORD m_dwMaxItemsOfEscrow{};
    DWORD m_dwUseRestrictAmountOfDepositByAPP{};
    DWORD m_dwDisableCIMRetract{};
    DWORD m_dwDisableCDMRetract{};
    DWORD m_dwOutShutterLockType{};
    DWORD m_dwRetractCashOfShutterIn{};
    DWORD m_dwEnableAccountWhenVerifyFailed{};
    DWORD m_dwRtNoItemIfNoCashAccepedInCIE{};
    DWORD m_dwCheckEmptyOnOutSht{};
    CString m_strRestrictDepCntPathByAP;
    CString m_strRestrictDepCntKeyByAP;
    CString m_strRestrictDepAmtPathByAP;
    CString m_strRestrictDepAmtKeyByAP;
    DWORD m_dwRetractWhenResetInputNull{};
    DWORD m_dwHandleDepRestrict0ByAp{};
};

} // namespace wqspcfg
