#pragma once

#include "wqspcfg/classes/CRMRegInfo.h"
#include "wqspcfg/parts/CassetteSlot.h"

// A note recycler with seven cassette slots, in the order A, B, C, D, E, F, R.
class WQSPCFG_API CSPCRMWQ07RegInfo : public CCRMRegInfo
{
  public:
    CSPCRMWQ07RegInfo(const CString& strName, bool bPhysicalName);
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwActionOfInnerShutterCantCloseInCIM;
    DWORD m_dwHwInitCount;
    DWORD m_dwRollbackDelayTimeout;
    bool m_bTryRetract2CasE;
    bool m_bForceRetract2CasE;
    DWORD m_dwSetPOSNULLPosition;
    DWORD m_dwStoreFirstCollect;
    DWORD m_dwDispenseFirstDepart;
    DWORD m_dwTryCloseOutSht;
    bool m_bDepartClose;
    DWORD m_dwCollectClose;
    DWORD m_dwCasTypeFollowSlot;
    DWORD m_dwAddCasDataType;
    DWORD m_dwUnitPhyPosName;
    bool m_bUseCassetteFAndNotSupportRtract;
    bool m_bUseCassetteEAsRJCAS;
    tagCassetteSlot m_arSlot[7];
    DWORD m_dwOutShutterType;
    DWORD m_dwVtmOutShtPort;
    DWORD m_dwVtmOutShtCtrlIndex;
    DWORD m_dwVtmOutShtSafeDoorIndex;
    DWORD m_dwVtmOutShtStIndex;
    DWORD m_dwVtmPolOfSafeDoor;
    DWORD m_dwInitType;
    DWORD m_dwWQVtmOutShtPort;
    DWORD m_dwMaxItemsOfEscrow;
    bool m_bUseRestrictAmountOfDepositByAPP;
    bool m_bDisableCIMRetract;
    bool m_bDisableCDMRetract;
    DWORD m_dwOutShutterLockType;
    bool m_bRetractCashOfShutterIn;
    bool m_bEnableAccountWhenVerifyFailed;
    DWORD m_dwContainerCanAsCashInOut;
    DWORD m_dwCanRejectCash;
    bool m_bRetryWhenDepartBad;
    DWORD m_dwExtraMoveTimesWhenReceiveNotEnough;
    DWORD m_dwHandleBillNotMatchCasValues;
    bool m_bRtNoItemIfNoCashAccepedInCIE;
    bool m_bCheckEmptyOnOutSht;
    CString m_strRestrictDepCntPathByAP;
    CString m_strRestrictDepCntKeyByAP;
    CString m_strRestrictDepAmtPathByAP;
    CString m_strRestrictDepAmtKeyByAP;
    bool m_bRetractWhenResetInputNull;
    DWORD m_dwHandleDepRestrict0ByAp;
};
