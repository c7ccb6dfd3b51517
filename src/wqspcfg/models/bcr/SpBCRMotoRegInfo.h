#pragma once

#include "wqspcfg/models/shared/MotoScanner.h"

// The Moto barcode reader.
class WQSPCFG_API CSpBCRMotoRegInfo : public wqspcfg::MotoScanner
{
  public:
    CSpBCRMotoRegInfo(const CString& strName, bool bPhysicalName);

    static const wqspcfg::Table& Settings() noexcept;
};
