#pragma once

#include "wqspcfg/models/shared/PassbookPrinter.h"

// The NanTian PR9 passbook printer.
class WQSPCFG_API CSpPTRNanTianPR9RegInfo : public wqspcfg::PassbookPrinter
{
  public:
    CSpPTRNanTianPR9RegInfo(const CString& strName, bool bPhysicalName);
    ~CSpPTRNanTianPR9RegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwPort{};
    DWORD m_dwBaudRate{};
    DWORD m_dwCharSpace{};
    DWORD m_dwUseOneForm{};
    DWORD m_dwPowerOnOption{};
    DWORD m_dwMaxRetract{};
    DWORD m_dwTopAdjustSpace{};
    DWORD m_dwLeftAdjustSpace{};
    bool m_bForceRetract{};
    CString m_strTrack2;
    CString m_strTrack3;
    CString m_strFontName;
    DWORD m_dwRetractCount{};
    bool m_bKeepPaperStatusFull{};
    bool m_bEjectAfterReadFaild{};
    DWORD m_dwCharWidthFlag{};
    DWORD m_dwCharHeightFlag{};
    DWORD m_dwResetCount{};
};
