#pragma once

#include "wqspcfg/classes/PTRRegInfo.h"

// The LT2320 receipt printer.
class WQSPCFG_API CSpPtrReceiptLT2320RegInfo : public CPTRRegInfo
{
  public:
    CSpPtrReceiptLT2320RegInfo(const CString& strName, bool bPhysicalName);
    ~CSpPtrReceiptLT2320RegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    // Puts the settings of this model back to their defaults, its counters (m_dwCurLastCount, m_dwPrintedLenght)
    // excepted; in the object only, Save makes it last.
    void ResetValue();
    // Takes one off the receipts left (m_dwCurLastCount), not below 0, and writes them at once.
    void DescCurLowCount();
    // Sets the receipts left to their maximum (m_dwLowMaxCount) and writes them at once.
    void ResetCurLowCount();
    // Writes the length printed so far (m_dwPrintedLenght), which the provider adds up, at once.
    void SavePrintedLength();

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwPort{};
    DWORD m_dwBaudRate{};
    CString m_strFontName;
    CString m_strRawDataFontName;
    bool m_bMustBeFontName{};
    bool m_bUseCPI{};
    bool m_bRawDataUseUnitMM{};
    bool m_bMustBeWordWrap{};
    bool m_bWrapKeepXPosition{};
    DWORD m_dwCharset{};
    DWORD m_dwFormWidth{};
    DWORD m_dwFormHeight{};
    DWORD m_dwFontSize{};
    DWORD m_dwRawDataStyle{};
    bool m_bNewLineWhenOverWidth{};
    bool m_bFixFontSize{};
    bool m_bMustBeBolt{};
    bool m_bCutPaperPowerOn{};
    bool m_bMustBeCut{};
    bool m_bUseCountWhenLow{};
    DWORD m_dwContinuePrintType{};
    DWORD m_dwCurLastCount{};
    DWORD m_dwLowMaxCount{};
    DWORD m_dwPrintedLenght{};
    bool m_bMustCutRawData{};
    DWORD m_dwFieldPosYChange{};
    DWORD m_dwPrintHWErrorTime{};
    DWORD m_dwPrintSpeed{};
    bool m_bCutALL{};
    DWORD m_dwAdjustLen{};
    DWORD m_dwLeftSpace{};
    DWORD m_dwLineSpace{};
    DWORD m_dwWordSpace{};
    bool m_bSendMediaTakenEvent{};
    bool m_bSendTakenEventWhenAutoCut{};
    bool m_bCutEveryTime{};
    bool m_bCheckMediaControlWhenPrintForm{};
    bool m_bCutPaperPowerOnAsCurrentPos{};
    bool m_bOffsetValid{};
    bool m_bSendFieldWarnningEvent{};
    bool m_bIsUseImageStretch{};
    DWORD m_dwTopSpace{};
    DWORD m_dwRawDataFontSize{};
    bool m_bRawDataNewLineWhenOverWidth{};
    DWORD m_dwRawDataRowBitCount{};
    DWORD m_dwWaitMediaTakenTime{};
    DWORD m_dwLeastHeight{};
    bool m_bLimitLeastHeight{};
    DWORD m_dwPrintThickness{};
    bool m_bCapWithSkip{};
    bool m_bAddNullToUnicodeFields{};
};
