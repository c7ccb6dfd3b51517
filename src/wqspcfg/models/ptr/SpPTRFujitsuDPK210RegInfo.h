#pragma once

#include "wqspcfg/models/shared/PassbookPrinter.h"

// The Fujitsu DPK210 passbook printer.
class WQSPCFG_API CSpPTRFujitsuDPK210RegInfo : public wqspcfg::LinePassbookPrinter
{
  public:
    CSpPTRFujitsuDPK210RegInfo(const CString& strName, bool bPhysicalName);
    ~CSpPTRFujitsuDPK210RegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwUseOneForm{};
    DWORD m_dwStartLineNum{};
    DWORD m_dwMaxLineNum{};
    bool m_bKeepPassbookInAfterPrint{};
    DWORD m_dwPowerOnOption{};
    bool m_bInsertVertical{};
    CString m_strTrack2;
    CString m_strTrack3;
    DWORD m_dwRetractCount{};
    bool m_bKeepPaperStatusFull{};
};
