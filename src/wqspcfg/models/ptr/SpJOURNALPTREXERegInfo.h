#pragma once

#include "wqspcfg/classes/PTRRegInfo.h"

// Journal printers. Part of the settings belongs to the maker's journal driver, whose key every terminal has once;
// these are read from there and never written.
class WQSPCFG_API CSpJOURNALPTREXERegInfo : public CPTRRegInfo
{
  public:
    CSpJOURNALPTREXERegInfo(const CString& strName, bool bPhysicalName);
    ~CSpJOURNALPTREXERegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwRawDataOverflowType{};
    bool m_bRawDataFilterStringTailReturn{};
    CString m_strReturnWord;
    DWORD m_dwColumnWidth{};
    bool m_bMustBeBolt{};
    bool m_bAutoReset{};
    DWORD m_dwCharSet{};
    bool m_bUseUpInspect{};
    bool m_bSendFieldWarnningEvent{};
    DWORD m_dwSizeBt2Lines{};
    DWORD m_dwPrintHeight{};
    bool m_bIsSimulate{};
};
