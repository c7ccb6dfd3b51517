#pragma once

#include "wqspcfg/classes/IDCRegInfo.h"

// A barcode scanner behind a device driver module, served as a card reader.
class WQSPCFG_API CSpIDCPrdScannerRegInfo : public CIDCRegInfo
{
  public:
    CSpIDCPrdScannerRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpIDCPrdScannerRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    CString m_strDN_BCR_BARCODE;
    CString m_strBeepFile;
    DWORD m_dwReEnableScannerWaitTime{}; // milliseconds
    DWORD m_dwReadTracks{};
};
