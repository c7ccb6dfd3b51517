#pragma once

#include "wqspcfg/classes/BCRRegInfo.h"
#include "wqspcfg/parts/MotoScanner.h"

// The Moto scanner where it is served as a card reader. It is configured as a barcode reader: it has none of the
// settings that card readers share.
class WQSPCFG_API CSpIDCMotoScannerRegInfo : public CBCRRegInfo, public wqspcfg::MotoScanner
{
  public:
    CSpIDCMotoScannerRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpIDCMotoScannerRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;
};
