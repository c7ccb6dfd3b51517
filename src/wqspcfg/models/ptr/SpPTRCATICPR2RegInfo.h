#pragma once

#include "wqspcfg/models/shared/PassbookPrinter.h"

// The PR2 passbook printer.
class WQSPCFG_API CSpPTRCATICPR2RegInfo : public wqspcfg::PassbookPrinter
{
  public:
    CSpPTRCATICPR2RegInfo(const CString& strName, bool bPhysicalName);
    ~CSpPTRCATICPR2RegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwPort{};
    DWORD m_dwBaudRate{};
    DWORD m_dwCharSpace{};
    DWORD m_dwLineSpace{};
    DWORD m_dwUseOneForm{};
    DWORD m_dwStartLineNum{};
    DWORD m_dwMaxLineNum{};
    DWORD m_dwPowerOnOption{};
    DWORD m_dwMaxRetract{};
    DWORD m_dwFormForceUnit{};
    DWORD m_dwPrintUseUnit{};
    DWORD m_dwTopAdjustSpace{};
    DWORD m_dwLeftAdjustSpace{};
    bool m_bForceRetract{};
    DWORD m_dwReadMagicModel{};
    CString m_strTrack2;
    CString m_strTrack3;
    CString m_strFontName;
    DWORD m_dwFontSize{};
    DWORD m_dwRetractCount{};
    bool m_bKeepPaperStatusFull{};
    bool m_bBold{};
    DWORD m_dwCharWidthFlag{};
    DWORD m_dwResetCount{};
    DWORD m_dwCharHeightFlag{};
    DWORD m_dwLeftMargin{};
    DWORD m_dwRawDataParseID{};
    bool m_bSupportCmdOfRawData{};
    bool m_bSupportCmdOfReadImage{};
};
