#pragma once

#include "wqspcfg/classes/CRMRegInfo.h"
#include "wqspcfg/parts/CassetteSlot.h"

// A note recycler with seven cassette slots, in the order A, B, C, D, E, F, R.
class WQSPCFG_API CSpC81DriverRegInfo : public CCRMRegInfo
{
  public:
    CSpC81DriverRegInfo(const CString& strName, bool bPhysicalName);
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwActionOfInnerShutterCantCloseInCIM;
    DWORD m_dwHwInitCount;
    DWORD m_dwRollbackDelayTimeout;
    bool m_bTryRetract2CasE;
    DWORD m_dwStoreFirstCollect;
    DWORD m_dwDispenseFirstDepart;
    DWORD m_dwTryCloseOutSht;
    bool m_bDepartClose;
    DWORD m_dwCollectClose;
    DWORD m_dwCasTypeFollowSlot;
    DWORD m_dwUnitPhyPosName;
    bool m_bUseCassetteR;
    bool m_bUseCassetteEAsRJCAS;
    tagCassetteSlot m_arSlot[7];
    DWORD m_dwOutShutterType;
    DWORD m_dwVtmOutShtPort;
    DWORD m_dwVtmOutShtCtrlIndex;
    DWORD m_dwVtmOutShtSafeDoorIndex;
    DWORD m_dwVtmOutShtStIndex;
    DWORD m_dwInitType;
    DWORD m_dwWQVtmOutShtPort;
    DWORD m_dwUDCID;
    DWORD m_dwODCID;
    DWORD m_dwLEGCTime;
    DWORD m_dwLEGCPol;
    CString m_strDLIFilePath;
    CString m_strBeepFilePath;
    DWORD m_dwModelCloseBeepPolicy;
    DWORD m_dwContainerCanAsCashInOut;
    DWORD m_dwCanRejectCash;
    bool m_bRetryWhenDepartBad;
    DWORD m_dwExtraMoveTimesWhenReceiveNotEnough;
    DWORD m_dwHandleBillNotMatchCasValues;
    DWORD m_dw6060CASTypeRf6040w;
    DWORD m_dwHandleRefuseReasonOfVerify;
};
