#pragma once

#include "wqspcfg/models/shared/PagePrinter.h"

// The HP PW552DW page printer with stamping unit and paper output transport.
class WQSPCFG_API CSpPTRHPPW552DWRegInfo : public wqspcfg::PagePrinter
{
  public:
    CSpPTRHPPW552DWRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpPTRHPPW552DWRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwRawdataParseID{};
};
