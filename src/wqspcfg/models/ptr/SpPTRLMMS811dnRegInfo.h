#pragma once

#include "wqspcfg/models/shared/PagePrinter.h"

// The MS811dn page printer with stamping unit and paper output transport.
class WQSPCFG_API CSpPTRLMMS811dnRegInfo : public wqspcfg::JobPagePrinter
{
  public:
    CSpPTRLMMS811dnRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpPTRLMMS811dnRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwRawDataFilePathStyle{};
};
