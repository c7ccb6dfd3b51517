// Settings of cash recyclers, dispensers and acceptors (XFS classes CDM and CIM) and their note types.
#pragma once

#include "wqspcfg/core/RegInfo.h"
#include "wqspcfg/parts/serial/BillBLRegInfo.h"
#include "wqspcfg/parts/serial/BillFAIRegInfo.h"
#include "wqspcfg/parts/serial/BillFSNRegInfo.h"
#include "wqspcfg/parts/serial/BillSNRegInfo.h"
#include "wqspcfg/platform/framework/FrameworkTypes.h"
#include "wqspcfg/platform/store/KeyHandle.h"
#include "wqspcfg/platform/xfs/XfsCim.h"

// One object serves both faces of the module, the dispenser (CDM) and the acceptor (CIM). Values ending in InCDM or
// OfCDM are for the one, those ending in InCIM or OfCIM for the other.
//
// The note types are in the subkeys NoteType1, NoteType2, ... of the device key's subkey NoteType, whose value Count
// tells how many there are. The operations on them return 0, WFS_ERR_INTERNAL_ERROR where a note type lacks a value or
// has a currency that is not exactly 3 characters or where the registry fails, or WFS_ERR_UNSUPP_DATA; they log
// nothing. Each reads one consistent state of the registry, afresh: only Load and ConfigureNoteTypes touch the member
// m_arNoteType.
class WQSPCFG_API CCRMRegInfo : public CRegInfo
{
  public:
    using NoteTypes = CArray<_wfs_cim_note_type, _wfs_cim_note_type&>;

    CCRMRegInfo(const CString& strName, bool bPhysicalName);
    ~CCRMRegInfo() override;
    // False when the note types cannot be read or the device key has no subkey SNRData (serial numbers). Load ends
    // there, and members that it would read later keep their values.
    bool Load(CLog* pLog) override;
    // Writes what is saved of this class, and not what CRegInfo saves. Ends behind the note types where the device key
    // has no subkey SNRData.
    void Save() override;

    // The note IDs in the order of the subkeys; on an error, those before it.
    LONG GetNoteIDArray(CArray<WORD, WORD>& ids) const;
    // Whether a note type has that ID; one behind a defective subkey is not found.
    bool IsValidNoteID(WORD id) const;
    // The ID of the first note type of that denomination; 0 when there is none or the note types cannot be read.
    WORD GetBankNoteBy(WORD value) const;
    // The note types in the order of the subkeys; on an error, those before it.
    LONG GetBankNoteTypes(NoteTypes& types) const;
    // Stores bConfigured of those note types whose ID the registry holds and reads m_arNoteType again. Of records with
    // the same ID the first one counts. WFS_ERR_UNSUPP_DATA when there are no note types; where a subkey lacks its ID,
    // those before it are written.
    LONG ConfigureNoteTypes(const NoteTypes& types);

    // Whether a retract on that occasion, a bit of AddCashInCountAtCIMRetract or AddCashInCountAtCDMRetract, raises the
    // cash-in count.
    bool NeedAddCashInCountAtCIM(int nOccasion) const;
    bool NeedAddCashInCountAtCDM(int nOccasion) const;

    static const wqspcfg::Table& Settings() noexcept;

    bool m_bForceResetToRTCASInCIM{};
    bool m_bForceResetToRTCASInCDM{};
    bool m_bUseSPAutoReset{};
    bool m_bCheckInputParamOfCDM{};
    bool m_bCheckInputParamOfCIM{};
    bool m_bReCloseShutterRetOKInCDM{};
    bool m_bReCloseShutterRetOKInCIM{};
    bool m_bReOpenShutterRetOKInCDM{};
    bool m_bReOpenShutterRetOKInCIM{};
    bool m_bAllowDispenseWhenSafeDoorOpen{};
    bool m_bAllowPresentWhenSafeDoorOpen{};
    bool m_bAllowDepositWhenSafeDoorOpen{};
    DWORD m_dwAllowTestUnitWhenSafeDoorOpen{};
    DWORD m_dwResetRetSucceedWhenSafeDoorOpen{};
    DWORD m_dwExchangeCheckSafeDoorOpen{};
    DWORD m_dwCheckNotEmptyInCashInStart{};
    DWORD m_dwKeepInShutterOpenInCashIn{};
    bool m_bCanRejectWhatever{};
    DWORD m_dwRejectCountCalcMode{};
    DWORD m_dwCDMRjRtCUCalcMode{};
    bool m_bUseHWCountMode{};
    bool m_bTryDenominateMultiValue{};
    DWORD m_dwUseNewMixMode{};
    DWORD m_dwActionOfGetSNFailed{};
    DWORD m_dwMixPriority{};
    DWORD m_dwMixEqualEmptyingEveryTime{};
    DWORD m_dwMixMaxNumberOrUnit{};
    DWORD m_dwDisCasExtremeCnt{};
    bool m_bStopCIMIfAllNonMixBoxFullAndHavecyclebox{};
    bool m_bStopCIMIfNoInExceptNonValue{};
    bool m_bCloseShtBeforeDispense{};
    DWORD m_dwDispenseTimeOutReturnNotDispensable{};
    DWORD m_dwOuterShutterCloseTimeOut{};
    bool m_bSendNoteErrorEvent{};
    DWORD m_dwAddCashInCountAtCIMRetract{};
    DWORD m_dwAddCashInCountAtCDMRetract{};
    DWORD m_dwEnableCasEstimate{};
    DWORD m_dwEnableRandSpecMix{};
    DWORD m_dwRandSpecMixOrder{};
    DWORD m_dwHandlePosNotEmptyInStartExchange{};
    DWORD m_dwKeepOutShtOpenInCashIn{};
    bool m_bMonitorItemsInsertAfterCashInStart{};
    bool m_bEnableSubDispense{};
    DWORD m_dwSubDispenseCountOfOnce{};
    DWORD m_dwRejectTimesWhenSubDispenseFail{};
    DWORD m_dwEmptyLimit{};
    DWORD m_dwFullLimit{};
    DWORD m_dwMaxLimit{};
    DWORD m_dwMinLimit{};
    DWORD m_dwFullLimitOfRetract{};
    DWORD m_dwMaxLimitOfRetract{};
    DWORD m_dwFullLimitOfReject{};
    DWORD m_dwMaxLimitOfReject{};
    bool m_bPhyLog11{};
    DWORD m_dwAddCassMode{};
    DWORD m_dwStopIfPlugCU{};
    DWORD m_dwRecoverCUStOnReset{};
    DWORD m_dwCasBothVisible{};
    DWORD m_dwRearPosOfCasRtRj{};
    DWORD m_dwDelMissCUOnEndExchange{};
    bool m_bCUState2Ok{};
    bool m_bInCUEmptyWhenLogicalEmpty{};
    bool m_bOutCUEmptyWhenLogicalEmpty{};
    bool m_bReportFullOfNoMixCasInCasAndRecycleCas{};
    bool m_bOptAcceptorStaWhenAllNonMixBoxFullAndHavecyclebox{};
    DWORD m_dwAdjustCassStatusByType{};
    DWORD m_dwRejectPosition{};
    bool m_bRejectWhenDispenseFail{};
    DWORD m_dwRetractWhenPresentFail{};
    bool m_bDispenseAgain{};
    DWORD m_dwShakeOuterShtBeforeDispense{};
    DWORD m_dwBillTakenCheckTimeOut{};
    DWORD m_dwApCanRetract2MixCasIn{};
    bool m_bResetWhenCashInEndFail{};
    bool m_bResetWhenCashInActived{};
    bool m_bWatchWhenCashIn{};
    bool m_bPostItemInsertEventInVerify{};
    bool m_bAllowRollbackWhenPosNotEmpty{};
    bool m_bHaveConfirmBtnForKalPlatform{};
    bool m_bRetTooManyItemsIfPossibleInVerify{};
    DWORD m_dwUseFixDep{};
    bool m_bPostCIMItemsInsertTakenEventOnlyOnce{};
    DWORD m_dwRunAPCloseShtOnCashInActive{};
    DWORD m_dwRestrictCountOfDispense{};
    bool m_bPostCDMItemsTakenEventAfterShtCls{};
    DWORD m_dwRestrictCountOfDeposit{};
    DWORD m_dwRestrictAmountOfDeposit{};
    DWORD m_dwRestrictCountOfReject{};
    DWORD m_dwRetractBillsWhenSPStart{};
    DWORD m_dwRtnDevErrorOnPosNotEmptyOfCIS{};
    DWORD m_dwCheckCUOnEndExchange{};
    bool m_bCDMShutterControlCap{};
    wchar_t m_chAppBlackSymbol{};
    wchar_t m_chDevBlackSymbol{};
    CString m_strDelExtraStatus;
    bool m_bNeedCheckPositionStatusWhenCashInEnd{};
    DWORD m_dwPosOrderStyleOfCIMStatus{};
    bool m_bUseVirtualEscrow{};
    DWORD m_dwEnableReplenish{};
    DWORD m_dwCasTypeCanCount{};
    DWORD m_dwCasStatusCannotCount{};
    DWORD m_dwForceDeposite{};
    DWORD m_dwSendItemPresentedEventAfterPresent{};
    DWORD m_dwMonitorPosStatAfterCDMOpenSht{};
    DWORD m_dwCountStyleOfRefuseNumberInCashInStatus{};

    CStringArray m_arSupportCurrencyID;
    CStringArray m_arSupportCurrencyExponent; // one for each currency
    CArray<WORD, WORD> m_arSupportMixNumber;
    NoteTypes m_arNoteType; // as of the last Load or ConfigureNoteTypes

    wqspcfg::KeyHandle m_keySNRData; // of the four records; open after Load has read them
    tagBillSNRegInfo m_sBillSNRegInfo;
    tagBillFSNRegInfo m_sBillFSNRegInfo;
    tagBillBLRegInfo m_sBillBLRegInfo;
    tagBillFAIRegInfo m_sBillFAIRegInfo;
};
