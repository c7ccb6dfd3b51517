#pragma once

#include "wqspcfg/classes/PTRRegInfo.h"

// The HP PW552DW page printer with stamping unit and paper output transport.
class WQSPCFG_API CSpPTRHPPW552DWRegInfo : public CPTRRegInfo
{
  public:
    CSpPTRHPPW552DWRegInfo(const CString& strName, bool bPhysicalName);
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    bool m_bOpenMediaJamCheck;
    bool m_bAdobeToolPrint;
    DWORD m_dwCheckTotalTime;
    DWORD m_dwCheckNOMediaTime;
    bool m_bPrintHtml;
    DWORD m_dwPrintHtmlType;
    CString m_strFontName;
    DWORD m_dwFontSize;
    bool m_bIsStamp;
    DWORD m_dwStampPort;
    DWORD m_dwStampBaudRate;
    DWORD m_dwPosYOfFirstStamp;
    DWORD m_dwPaperCount;
    DWORD m_dwStampNumber;
    DWORD m_dwFirstYPos;
    DWORD m_dwSecondYPos;
    DWORD m_dwThirdYPos;
    DWORD m_dwStampMode;
    bool m_bOpenPaperOut;
    DWORD m_dwPaperOutPort;
    DWORD m_dwRawdataParseID;
};
