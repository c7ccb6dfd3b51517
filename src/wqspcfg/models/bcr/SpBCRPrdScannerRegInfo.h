#pragma once

#include "wqspcfg/classes/BCRRegInfo.h"

// A barcode reader behind a device driver module.
class WQSPCFG_API CSpBCRPrdScannerRegInfo : public CBCRRegInfo
{
  public:
    CSpBCRPrdScannerRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpBCRPrdScannerRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    CString m_strDN_BCR_BARCODE;
    CString m_strBeepFile;
    DWORD m_dwReEnableScannerWaitTime{};
};
