#pragma once

#include "wqspcfg/models/shared/PassbookPrinter.h"

// The Epson PLQ-20KM passbook printer.
class WQSPCFG_API CSpPTREpsonPLQ20KMRegInfo : public wqspcfg::LinePassbookPrinter
{
  public:
    CSpPTREpsonPLQ20KMRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpPTREpsonPLQ20KMRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    bool m_bInsertVertical{};
    bool m_bKeepPaperStatusFull{};
    DWORD m_dwRawDataParseID{};
    DWORD m_dwUseOneForm{};
    DWORD m_dwMagType{};
    DWORD m_dwTrackTwoReturnStyle{};
    DWORD m_dwMaxRetract{};
    DWORD m_dwRetractCount{};
    DWORD m_dwOpenOption{};
    CString m_strTrack2;
    CString m_strTrack3;
};
