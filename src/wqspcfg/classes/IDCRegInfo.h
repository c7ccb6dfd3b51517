// Settings of card readers (XFS class IDC).
#pragma once

#include "wqspcfg/core/RegInfo.h"

// How the provider of a card reader behaves: retaining and its counters, eject, error codes, tracks, card gate, light
// and buzzer, the card return module (RCM) and an optimisation in configured periods. Card return module and
// optimisation are read only where they are switched on; their members hold the constructor's values otherwise.
class WQSPCFG_API CIDCRegInfo : public CRegInfo
{
  public:
    CIDCRegInfo(const CString& strName, bool bPhysicalName);
    ~CIDCRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwActionOnFull{};
    bool m_bWaitCardReMoveBeforeComplete{};
    bool m_bResetOfUncommunicateErr{};
    bool m_bAllowRetainOfHwError{};
    bool m_bAllowResetCountByErrDevStatu{};
    bool m_bAllowRetainOfRetainBinFull{};
    bool m_bICCInsertDependChip{};
    bool m_bAutoSelProtocal{};
    bool m_bSendCardMoveEventOfRetain{};
    bool m_bReturnSuccessIfInvalidMedia{};
    bool m_bSendInvalidTrackDataEvent{};
    bool m_bRtnFatalErrorOfNoMeida{};
    bool m_bRtnSuccessOfNoMediaEject{};
    bool m_bRtnSuccessOfNoMediaResetEject{};
    bool m_bSendCardInsertOfTimeOut{};
    bool m_bBroadcastExeeToAllWnd{};
    DWORD m_dwWaitCardTaken{};        // milliseconds, never 0
    DWORD m_dwTimeOfAllowCardGate{};  // seconds
    DWORD m_dwChangeTimeOfCardGate{}; // seconds
    DWORD m_dwChangeCountOfCardGate{};
    DWORD m_dwRetainOnBackInsert{};
    bool m_bNeedFireHwSwErrEventOfRCM{};
    DWORD m_dwMaxRetainCard{};
    DWORD m_dwRetainBinHigh{};
    DWORD m_dwCountOfRetained{};
    DWORD m_dwApID{};
    DWORD m_dwActionOfCardHook{};
    DWORD m_dwLEDBuzzerControl{};
    CString m_strTrack1KeyWord;
    CString m_strTrack2KeyWord;
    CString m_strTrack3KeyWord;
    bool m_bExecBackEntryOfResetReq{};
    DWORD m_dwLedFlushTimeOfEject{}; // seconds
    DWORD m_dwHWErrorBuzzerTime{};   // seconds
    DWORD m_dwRawDataForceSuccess{};
    DWORD m_dwLEDFlushTimeGap{}; // milliseconds
    CString m_strDevErrBeepPath;
    bool m_bIsSendInsertEvent{};
    DWORD m_dwHaveRCM{};
    CString m_strLogicalNameOfRCMIDC;
    DWORD m_dwNumOfCycleSlot{};
    DWORD m_dwAutoReduceCount{};
    DWORD m_dwIsEmptyCardBaseOnSlotNum{};
    DWORD m_dwIsSetMaxRetainCount{};
    DWORD m_dwIsAddUncycleSlotCount{};
    bool m_bAllowCardIDEmptyWhenCMRetain{};
    bool m_bAllowCardIDEmptyWhenCMEject{};
    DWORD m_dwPolicyRCMRetainCount{};
    bool m_bAutoEmptyCardInfoWhenSlotNoCard{};
    bool m_bIsRCMShowCardReaderStatus{};
    bool m_bIsClearCardReaderRetainCount{};
    bool m_bIsClearCardRCMRetainCount{};
    DWORD m_dwSlotInfoType{};
    DWORD m_dwIsSaveTimeFromAP{};
    bool m_bIsClearAllSlotWhenCMSETCONT{};
    DWORD m_dwIsChipIODataLenDivideTwo{};
    DWORD m_dwWaitCardInsertInterval{}; // milliseconds
    DWORD m_dwOptmPolicy{};
    DWORD m_dwOffsetSec{};   // 0 to 3599, drawn afresh by Load
    CString m_strProc1Start; // hours_minutes_seconds, local time
    CString m_strProc1Stop;
    CString m_strProc2Start;
    CString m_strProc2Stop;
    DWORD m_dwOptmDelay{}; // seconds
    bool m_bSendMREOnlyIfWaitTaken{};
    bool m_bNeedSupportMediaLatched{};
    bool m_bIsAddExtraMemWhenSavePic{};
    DWORD m_dwReserved[128] = {}; // not used
    DWORD m_dwPrepareNextSlotPolicy{};
    DWORD m_dwRetainWhenInvalidMedia{};
    bool m_bCheckMediaWhenSetCardData{};
    bool m_bCheckDevicWhenSetCount{};
    bool m_bCancelReadRawDataWhenNewReq{};
    bool m_bFastUpdateStatuWhenContactlessPresent{};
};
