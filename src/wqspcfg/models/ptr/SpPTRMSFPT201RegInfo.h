#pragma once

#include "wqspcfg/classes/PTRRegInfo.h"

// The PT201 receipt printer.
class WQSPCFG_API CSpPTRMSFPT201RegInfo : public CPTRRegInfo
{
  public:
    CSpPTRMSFPT201RegInfo(const CString& strName, bool bPhysicalName);
    ~CSpPTRMSFPT201RegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwPort{};
    DWORD m_dwBaudRate{};
    DWORD m_dwMachineType{};
    DWORD m_dwPolicyOfPaperState{};
    bool m_bOffsetValid{};
    DWORD m_dwLineSpace{};
    DWORD m_dwWordSpace{};
    DWORD m_dwLeftSpace{};
    bool m_bMustBeBold{};
    DWORD m_dwFontSize{};
    bool m_bUseCPI{};
    CString m_strFontName;
    bool m_bRawDataAsBmp{};
    bool m_bRawDataWordWrap{};
    DWORD m_dwRawDataFontSize{};
    CString m_strRawDataFontName;
    bool m_bImageStretch{};
    DWORD m_dwMaxBlackValue{};
    DWORD m_dwFeedBeforePrint{};
    DWORD m_dwFeedAfterPrint{};
    DWORD m_dwFeedBeforeCut{};
    bool m_bCutWhenEject{};
    bool m_bSendMediaTakenEvent{};
    DWORD m_dwWaitMediaTakenTime{};
    bool m_bIsFullCut{};
    DWORD m_dwPolicyOfLineSpace{};
    DWORD m_dwMinFeedLength{};
    DWORD m_dwTryResetCount{};
    bool m_bSendFieldWarnningEvent{};
    DWORD m_dwPrintThickness{};
};
