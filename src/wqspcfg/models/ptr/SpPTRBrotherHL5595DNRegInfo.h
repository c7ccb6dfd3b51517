#pragma once

#include "wqspcfg/models/shared/PagePrinter.h"

// The Brother HL-5595DN page printer with stamping unit and paper output transport.
class WQSPCFG_API CSpPTRBrotherHL5595DNRegInfo : public wqspcfg::JobPagePrinter
{
  public:
    CSpPTRBrotherHL5595DNRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpPTRBrotherHL5595DNRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;
};
