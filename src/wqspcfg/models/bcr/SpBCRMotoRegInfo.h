#pragma once

#include "wqspcfg/classes/BCRRegInfo.h"
#include "wqspcfg/parts/MotoScanner.h"

// The Moto barcode reader.
class WQSPCFG_API CSpBCRMotoRegInfo : public CBCRRegInfo, public wqspcfg::MotoScanner
{
  public:
    CSpBCRMotoRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpBCRMotoRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;
};
