#pragma once

#include "classes/BCRRegInfo.h"

// The Moto barcode scanner where it is served as a card reader. It has the settings of every barcode reader and none of
// its own: Load and Save are those of its base.
class WQSPCFG_API CSpIDCMotoScannerRegInfo : public CBCRRegInfo
{
  public:
    CSpIDCMotoScannerRegInfo(const CString& strName, bool bPhysicalName);

    static const wqspcfg::Table& Settings() noexcept;
};
