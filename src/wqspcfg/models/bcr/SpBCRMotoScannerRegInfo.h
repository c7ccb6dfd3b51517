#pragma once

#include "wqspcfg/classes/BCRRegInfo.h"
#include "wqspcfg/parts/MotoScanner.h"

// The Moto scanner.
class WQSPCFG_API CSpBCRMotoScannerRegInfo : public CBCRRegInfo, public wqspcfg::MotoScanner
{
  public:
    CSpBCRMotoScannerRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpBCRMotoScannerRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;
};
