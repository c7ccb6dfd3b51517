#pragma once

#include "wqspcfg/classes/PTRRegInfo.h"

// The HoneyWell N5680 barcode scanner, served as a printer.
class WQSPCFG_API CSpPTRHoneyWellN5680RegInfo : public CPTRRegInfo
{
  public:
    CSpPTRHoneyWellN5680RegInfo(const CString& strName, bool bPhysicalName);
    ~CSpPTRHoneyWellN5680RegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwType{};
    DWORD m_dwPort{};
    DWORD m_dwBaudRate{};
};
