#pragma once

#include "wqspcfg/models/shared/MotoScanner.h"

// The Moto scanner.
class WQSPCFG_API CSpBCRMotoScannerRegInfo : public wqspcfg::MotoScanner
{
  public:
    CSpBCRMotoScannerRegInfo(const CString& strName, bool bPhysicalName);

    static const wqspcfg::Table& Settings() noexcept;
};
