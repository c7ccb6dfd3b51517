// Settings of printers (XFS class PTR).
#pragma once

#include "wqspcfg/core/RegInfo.h"

// What receipt, journal, passbook, document and card printers, and scanners served as printers, have in common: where
// forms and media definitions are found and how they are parsed and checked, the polling intervals of the idle loop,
// and the policies of events and of the retract bin.
class WQSPCFG_API CPTRRegInfo : public CRegInfo
{
  public:
    CPTRRegInfo(const CString& strName, bool bPhysicalName);
    ~CPTRRegInfo() override;
    bool Load(CLog* pLog) override;
    // An empty form or media folder or extension is first replaced, in the member too, by that of a new terminal.
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwCheckDataBoundary{};
    DWORD m_dwCheckFormMediaOverflow{};
    DWORD m_dwNoAddBlankNode{};
    DWORD m_dwCutWhenResetWithEject{};
    CString m_strOtherFileDirectory;
    CString m_strFormsDirectory;
    CString m_strFormsExtension;
    CString m_strMediasDirectory;
    CString m_strMediasExtension;
    // Intervals of the provider's idle loop, in ms.
    DWORD m_dwDevNotOnLine{};
    DWORD m_dwDevError{};
    DWORD m_dwMediaNotPresent{};
    DWORD m_dwPaperOut{};
    DWORD m_dwWaitTaken{};
    bool m_bForceWaitMediaInsert{};
    bool m_bForceErrorWhenRetractBoxFull{};
    DWORD m_dwCheckInputParam{};
    DWORD m_dwAllDataMoveDown{};
    DWORD m_dwUseOldPrintType{};
    DWORD m_dwIsCkFormInvaidWhenPrint{};
    DWORD m_dwIsSupportFormInvaidList{};
    DWORD m_dwIsSupportMediaInvaidList{};
    DWORD m_dwIsUseEscapeCharacter{};
    DWORD m_dwIsUseEscapeCharacterWhenPrint{};
    DWORD m_dwSpaceCntWithTabKey{};
    DWORD m_dwIsSupportFormMediaReLoad{};
    DWORD m_dwSendErrorWhenFieldNotExist{};
    DWORD m_dwApID{};
    wchar_t m_chReadFormFieldDivCharLeft{}; // 0: none
    wchar_t m_chReadFormFieldDivCharRight{};
    DWORD m_dwSendPaperThresholdAction{};
    bool m_bRtFieldNameWhenTrackEmpty{};
    DWORD m_dwUsedInitialValueForIndex{};
    bool m_bSentMediatakenAfterSentMediapresented{};
    DWORD m_dwAllowRetractWhenFull{};
    DWORD m_dwSendMediaTakenOfReadImage{};
    DWORD m_dwStyleSupportVertialLine{};
    DWORD m_dwTriggerMTWhenNoMedia{};
    DWORD m_dwPrintNodeMgrType{};
    DWORD m_dwRawDataWaitMediaInsert{};
    DWORD m_dwReserved[127] = {}; // left to the provider
};
