#pragma once

#include "wqspcfg/classes/PTRRegInfo.h"

// The FX P355db page printer with stamping unit and paper output transport.
class WQSPCFG_API CSpPTRFXP355dbRegInfo : public CPTRRegInfo
{
  public:
    CSpPTRFXP355dbRegInfo(const CString& strName, bool bPhysicalName);
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
    DWORD m_dwTonerStatusType;
    DWORD m_dwRawDataFilePathStyle;
    DWORD m_dwPrintEndTimeOut;
    DWORD m_dwDeviceType;
    bool m_bIsStamp;
    DWORD m_dwStampType;
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
    DWORD m_dwCountOfTrays;
    bool m_bSendExeePresented;
    bool m_bWaitPrintJob;
    DWORD m_dwPaperStatusStartIndex;
};
