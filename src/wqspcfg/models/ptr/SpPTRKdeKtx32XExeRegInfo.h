#pragma once

#include "wqspcfg/classes/PTRRegInfo.h"

// The KTX32X device, served as a printer.
class WQSPCFG_API CSpPTRKdeKtx32XExeRegInfo : public CPTRRegInfo
{
  public:
    CSpPTRKdeKtx32XExeRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpPTRKdeKtx32XExeRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwPort{};
};
