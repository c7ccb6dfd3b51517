#pragma once

#include "wqspcfg/classes/PTRRegInfo.h"

// The JP80T receipt printer.
class WQSPCFG_API CSpPTRJP80TRegInfo : public CPTRRegInfo
{
  public:
    CSpPTRJP80TRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpPTRJP80TRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwPort{};
    DWORD m_dwBautRate{};
    bool m_bHandShake{};
    CString m_strIndentity;
    DWORD m_dwLineSpace{};
};
