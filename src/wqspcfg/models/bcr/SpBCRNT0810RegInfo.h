#pragma once

#include "wqspcfg/classes/BCRRegInfo.h"
#include "wqspcfg/parts/SerialBarcodeReader.h"

// The NT0810 barcode reader.
class WQSPCFG_API CSpBCRNT0810RegInfo : public CBCRRegInfo, public wqspcfg::SerialBarcodeReader
{
  public:
    CSpBCRNT0810RegInfo(const CString& strName, bool bPhysicalName);
    ~CSpBCRNT0810RegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;
};
