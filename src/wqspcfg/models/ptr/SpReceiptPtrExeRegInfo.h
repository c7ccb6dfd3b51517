#pragma once

#include "wqspcfg/classes/PTRRegInfo.h"

// Receipt printers driven through the operating system.
class WQSPCFG_API CSpReceiptPtrExeRegInfo : public CPTRRegInfo
{
  public:
    CSpReceiptPtrExeRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpReceiptPtrExeRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    // Puts the settings of this model back to their defaults, its counter (m_dwCurLastCount) excepted; in the object
    // only, Save makes it last.
    void ResetValue();
    // Takes one off the receipts left (m_dwCurLastCount), not below 0, and writes them at once.
    void DescCurLowCount();
    // Sets the receipts left to their maximum (m_dwLowMaxCount) and writes them at once.
    void ResetCurLowCount();

    static const wqspcfg::Table& Settings() noexcept;

    CString m_strFontName;
    DWORD m_dwRealWidth{};
    DWORD m_dwRealHeight{};
    DWORD m_dwFontSize{};
    DWORD m_dwRawDataFontSize{};
    bool m_bFixFontSize{};
    bool m_bAutoReset{};
    bool m_bHide7731{};
    bool m_bMustBeBolt{};
    bool m_bMustBeCut{};
    bool m_bMustBeFontName{};
    bool m_bUseCPI{};
    bool m_bRawDataUseUnitMM{};
    CString m_strRawDataFontName;
    DWORD m_dwPostTakenEventWhenAtten{};
    DWORD m_dwRawDataRowBitCount{};
    DWORD m_dwContinuePrintType{};
    bool m_bNewLineWhenOverWidth{};
    bool m_bUseCountWhenLow{};
    DWORD m_dwCurLastCount{};
    DWORD m_dwLowMaxCount{};
    DWORD m_dwCharset{};
    CString m_strReturnWord;
    DWORD m_dwRawDataWholeOrPart{};
    DWORD m_dwRawDataLineDealType{};
    DWORD m_dwRawDataLineWordCnt{};
    DWORD m_dwRawDataAutoCutLineCnt{};
    bool m_bSendFieldWarnningEvent{};
    bool m_bTonerAndInkNotSupport{};
};
