#pragma once

#include "wqspcfg/classes/PTRRegInfo.h"

// The Fujitsu DPK210 passbook printer.
class WQSPCFG_API CSpPTRFujitsuDPK210RegInfo : public CPTRRegInfo
{
  public:
    CSpPTRFujitsuDPK210RegInfo(const CString& strName, bool bPhysicalName);
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwPort;
    DWORD m_dwBaudRate;
    DWORD m_dwInitCount;
    DWORD m_dwFontSize;
    DWORD m_dwLeftMargin;
    DWORD m_dwLineSpace;
    bool m_bUseBlackFace;
    bool m_bUsePrintLine;
    DWORD m_dwPageLen;
    DWORD m_dwTopLen;
    DWORD m_dwBlankLen;
    DWORD m_dwFirstOverLen;
    DWORD m_dwSecondOverLen;
    DWORD m_dwUseOneForm;
    DWORD m_dwStartLineNum;
    DWORD m_dwMaxLineNum;
    bool m_bKeepPassbookInAfterPrint;
    DWORD m_dwPowerOnOption;
    bool m_bInsertVertical;
    CString m_strTrack2;
    CString m_strTrack3;
    DWORD m_dwRetractCount;
    bool m_bKeepPaperStatusFull;
};
