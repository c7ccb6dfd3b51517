#pragma once

#include "wqspcfg/classes/PTRRegInfo.h"

// The Sm2bu fingerprint collector, served as a printer.
class WQSPCFG_API CSpPTRZzSm2buRegInfo : public CPTRRegInfo
{
  public:
    CSpPTRZzSm2buRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpPTRZzSm2buRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwDevType{};
    DWORD m_dwApProtocolType{};
};
