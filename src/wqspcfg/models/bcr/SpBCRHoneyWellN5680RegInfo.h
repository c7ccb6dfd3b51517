#pragma once

#include "wqspcfg/classes/BCRRegInfo.h"
#include "wqspcfg/parts/SerialBarcodeReader.h"

// The HoneyWell N5680 barcode reader.
class WQSPCFG_API CSpBCRHoneyWellN5680RegInfo : public CBCRRegInfo, public wqspcfg::SerialBarcodeReader
{
  public:
    CSpBCRHoneyWellN5680RegInfo(const CString& strName, bool bPhysicalName);
    ~CSpBCRHoneyWellN5680RegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;
};
