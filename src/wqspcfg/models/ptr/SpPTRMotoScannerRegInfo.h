#pragma once

#include "wqspcfg/classes/PTRRegInfo.h"

// The Moto barcode scanner, served as a printer.
class WQSPCFG_API CSpPTRMotoScannerRegInfo : public CPTRRegInfo
{
  public:
    CSpPTRMotoScannerRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpPTRMotoScannerRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    CString m_strBeepFile;
    bool m_bIDCMode{};
    DWORD m_dwNRMode{};
    DWORD m_dwPatience{};
};
