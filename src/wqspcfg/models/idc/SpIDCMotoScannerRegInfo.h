#pragma once

#include "wqspcfg/models/shared/MotoScanner.h"

// The Moto scanner where it is served as a card reader. It is configured as a barcode reader: it has none of the
// settings that card readers share.
class WQSPCFG_API CSpIDCMotoScannerRegInfo : public wqspcfg::MotoScanner
{
  public:
    CSpIDCMotoScannerRegInfo(const CString& strName, bool bPhysicalName);

    static const wqspcfg::Table& Settings() noexcept;
};
