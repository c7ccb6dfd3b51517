#pragma once

#include "wqspcfg/classes/PTRRegInfo.h"

// Barcode scanners of all makes, served as a printer.
class WQSPCFG_API CSpPTRPrdScannerRegInfo : public CPTRRegInfo
{
  public:
    CSpPTRPrdScannerRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpPTRPrdScannerRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    bool m_bBroadMediainserted{};
    CString m_strDN_BCR_BARCODE;
    CString m_strBeepFile;
    DWORD m_dwReEnableScannerWaitTime{};
};
