#pragma once

#include "wqspcfg/classes/PTRRegInfo.h"

// The JT58 receipt printer.
class WQSPCFG_API CSpPTRJT58RegInfo : public CPTRRegInfo
{
  public:
    CSpPTRJT58RegInfo(const CString& strName, bool bPhysicalName);
    bool Load(CLog* pLog) override;
    void Save() override;

    // Takes one off the receipts left (m_dwCurCountWhenLow), not below 0, and writes them at once.
    void ReduceLowCount();
    // Sets the receipts left to their maximum (m_dwMaxCountWhenLow) and writes them at once.
    void ResetLowCount();

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwPort;
    DWORD m_dwBaudRate;
    DWORD m_dwPaperWidth;
    DWORD m_dwPaperHeight;
    bool m_bOffsetValid;
    DWORD m_dwLineSpace;
    DWORD m_dwWordSpace;
    DWORD m_dwLeftSpace;
    bool m_bMustBeBold;
    bool m_bUseFixFontSize;
    DWORD m_dwFontSize;
    bool m_bUseCPI;
    bool m_bMustBeFontName;
    CString m_strFontName;
    bool m_bRawDataAsBmp;
    bool m_bRawDataWordWrap;
    DWORD m_dwRawDataFontSize;
    CString m_strRawDataFontName;
    bool m_bUseImageStretch;
    DWORD m_dwBlackColorRangeMax;
    DWORD m_dwFeedBeforePrint;
    DWORD m_dwFeedAfterPrint;
    DWORD m_dwEjectLength;
    bool m_bCutWhenEject;
    bool m_bSendMediaTakenEvent;
    DWORD m_dwWaitMediaTakenTime;
    bool m_bIsFullCut;
    DWORD m_dwMaxCountWhenLow;
    DWORD m_dwCurCountWhenLow;
    DWORD m_dwPrintDensity;
    DWORD m_dwPrintSpeed;
    bool m_bFixedLineSpace;
};
