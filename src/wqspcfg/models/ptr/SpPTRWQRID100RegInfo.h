#pragma once

#include "wqspcfg/models/shared/RID100Printer.h"

// The RID100 ticket printer with retain bin, supply bins and RFID reader, under the maker's own name.
class WQSPCFG_API CSpPTRWQRID100RegInfo : public wqspcfg::RID100Printer
{
  public:
    CSpPTRWQRID100RegInfo(const CString& strName, bool bPhysicalName);
    ~CSpPTRWQRID100RegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;
};
