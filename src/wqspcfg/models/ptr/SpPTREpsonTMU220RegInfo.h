#pragma once

#include "wqspcfg/models/shared/BlackMarkReceiptPrinter.h"

// The Epson TM-U220 receipt printer.
class WQSPCFG_API CSpPTREpsonTMU220RegInfo : public wqspcfg::BlackMarkReceiptPrinter
{
  public:
    CSpPTREpsonTMU220RegInfo(const CString& strName, bool bPhysicalName);
    ~CSpPTREpsonTMU220RegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;
};
