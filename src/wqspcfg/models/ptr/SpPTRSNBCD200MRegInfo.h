#pragma once

#include "wqspcfg/classes/PTRRegInfo.h"

// The SNBC D200M document scanner with retain bin, served as a printer.
class WQSPCFG_API CSpPTRSNBCD200MRegInfo : public CPTRRegInfo
{
  public:
    CSpPTRSNBCD200MRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpPTRSNBCD200MRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwBaudRate{};
    DWORD m_dwMaxRetain{};
    DWORD m_dwHighRetainBin{};
    DWORD m_dwRetainBinCount{};
    DWORD m_dwMediaType{};
    DWORD m_dwOCRStyle{};
    DWORD m_dwDevType{};
};
