#pragma once

#include "wqspcfg/models/shared/RSV100Printer.h"

// The RSV100 ticket printer with retain bins and RFID reader, under the maker's own name.
class WQSPCFG_API CSpPTRWQRSV100RegInfo : public wqspcfg::RSV100Printer
{
  public:
    CSpPTRWQRSV100RegInfo(const CString& strName, bool bPhysicalName);
    ~CSpPTRWQRSV100RegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwFrimBankType{};
    DWORD m_dwSaveImageTime{};
};
