#pragma once

#include "wqspcfg/classes/PTRRegInfo.h"

// The Pos763 receipt printer.
class WQSPCFG_API CSpPTRCLPos763RegInfo : public CPTRRegInfo
{
  public:
    CSpPTRCLPos763RegInfo(const CString& strName, bool bPhysicalName);
    ~CSpPTRCLPos763RegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwPort{};
    DWORD m_dwBaudRate{};
    DWORD m_dwCutMode{};
    DWORD m_dwCutPos{};
    DWORD m_dwRawDataStyle{};
};
