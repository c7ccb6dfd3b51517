#pragma once

#include "wqspcfg/classes/PTRRegInfo.h"

// The WEL410AFE fingerprint collector, served as a printer.
class WQSPCFG_API CSpPTRWEL410AFEV10RegInfo : public CPTRRegInfo
{
  public:
    CSpPTRWEL410AFEV10RegInfo(const CString& strName, bool bPhysicalName);
    ~CSpPTRWEL410AFEV10RegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwDevType{};
};
