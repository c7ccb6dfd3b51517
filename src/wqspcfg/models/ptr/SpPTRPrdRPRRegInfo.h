#pragma once

#include "wqspcfg/classes/PTRRegInfo.h"

// Receipt printers of all makes.
class WQSPCFG_API CSpPTRPrdRPRRegInfo : public CPTRRegInfo
{
  public:
    CSpPTRPrdRPRRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpPTRPrdRPRRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    // Set the number of receipts retracted, or of receipts left (m_dwCurLastCount), and write it at once.
    void SetRetractCount(DWORD dwCount);
    void SetCurLastCount(DWORD dwCount);

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwPrintMode{};
    DWORD m_dwPrintBMPMode{};
    bool m_bUseBlackMark{};
    DWORD m_dwPowerOnAction{};
    bool m_bFullCut{};
    DWORD m_dwCutModeEx{};
    DWORD m_dwFeedBeforePrint{};
    DWORD m_dwFeedAfterPrint{};
    DWORD m_dwFeedBeforeCut{};
    DWORD m_dwEjectLength{};
    DWORD m_dwMinFeedLength{};
    bool m_bAddNullToUnicodeFields{};
    DWORD m_dwMediaControlPolicy{};
    bool m_bOffsetValid{};
    bool m_bIgnoreInvalidData{};
    CString m_strMediaNameWhenEmpty;
    bool m_bSendFieldWarnningEvent{};
    bool m_bSendMediaTakenEvent{};
    DWORD m_dwWaitMediaTakenTime{};
    DWORD m_dwLeftSpace{};
    DWORD m_dwLineSpace{};
    DWORD m_dwWordSpace{};
    DWORD m_dwRawDataFontSize{};
    CString m_strRawDataFontName;
    bool m_bRawDataWordWrap{};
    bool m_bRawDataMustBeBold{};
    DWORD m_dwRawDataRowBitCount{};
    bool m_bRawDataSuppEscape{};
    bool m_bPrintFormMustBeBold{};
    DWORD m_dwPrintFormFontSize{};
    bool m_bPrintFormWordWrap{};
    bool m_bUseCPI{};
    CString m_strPrintFormFontName;
    DWORD m_dwLineSpacePolicy{};
    bool m_bImageStretch{};
    DWORD m_dwMaxBlackColor{};
    DWORD m_dwPrintSpeed{};
    DWORD m_dwPrintThickness{};
    DWORD m_dwCharset{};
    DWORD m_dwRetractCount{};
    DWORD m_dwCurLastCount{};
    CString m_strDN_RPR_RECEIPT;
    DWORD m_dwTryResetCount{};
    DWORD m_dwRawDataStyle{};
    bool m_bUseOneFormPrintManyKindsReceipt{};
    DWORD m_dwAdjustPosY{};
    DWORD m_dwPrintIntervalTime{};
};
