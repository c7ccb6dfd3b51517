#pragma once

#include "wqspcfg/classes/PTRRegInfo.h"

// The SNBC SC100P document scanner with retain bin, served as a printer.
class WQSPCFG_API CSpPTRSNBCSC100PRegInfo : public CPTRRegInfo
{
  public:
    CSpPTRSNBCSC100PRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpPTRSNBCSC100PRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwMaxRetain{};
    DWORD m_dwHighRetainBin{};
    DWORD m_dwRetainBinCount{};
    CString m_strImageFilePath;
    DWORD m_dwTimeWaitReadImage{};
};
