#pragma once

#include "wqspcfg/classes/PTRRegInfo.h"

// The SM2B fingerprint collector, served as a printer.
class WQSPCFG_API CSpPTRZzSM2BRegInfo : public CPTRRegInfo
{
  public:
    CSpPTRZzSM2BRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpPTRZzSM2BRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwMatchLev{};
    DWORD m_dwPort{};
};
