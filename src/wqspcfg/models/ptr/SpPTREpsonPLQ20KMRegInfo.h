#pragma once

#include "wqspcfg/classes/PTRRegInfo.h"

// The Epson PLQ-20KM passbook printer.
class WQSPCFG_API CSpPTREpsonPLQ20KMRegInfo : public CPTRRegInfo
{
  public:
    CSpPTREpsonPLQ20KMRegInfo(const CString& strName, bool bPhysicalName);
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
    bool m_bInsertVertical;
    bool m_bKeepPaperStatusFull;
    DWORD m_dwRawDataParseID;
    DWORD m_dwUseOneForm;
    DWORD m_dwMagType;
    DWORD m_dwTrackTwoReturnStyle;
    DWORD m_dwMaxRetract;
    DWORD m_dwRetractCount;
    DWORD m_dwOpenOption;
    CString m_strTrack2;
    CString m_strTrack3;
};
