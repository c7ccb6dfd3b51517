#pragma once

#include "wqspcfg/models/shared/RSV100Printer.h"

// The RSV100 ticket printer with retain bins and RFID reader.
class WQSPCFG_API CSpPTRRSV100RegInfo : public wqspcfg::RSV100Printer
{
  public:
    CSpPTRRSV100RegInfo(const CString& strName, bool bPhysicalName);
    ~CSpPTRRSV100RegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    // Writes the number of items in every retain bin (m_dwRetainBinCount) at once.
    void SaveRetainBinCount();

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwBankType{};
};
