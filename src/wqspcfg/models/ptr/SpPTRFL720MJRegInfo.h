#pragma once

#include "wqspcfg/classes/PTRRegInfo.h"

// The FL720MJ fingerprint collector, served as a printer.
class WQSPCFG_API CSpPTRFL720MJRegInfo : public CPTRRegInfo
{
  public:
    CSpPTRFL720MJRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpPTRFL720MJRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwIntervalofTemplate{};
    DWORD m_dwDevPos{};
    DWORD m_dwPort{};
    DWORD m_dwBaudRate{};
};
