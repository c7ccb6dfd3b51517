// Settings of barcode readers (XFS class BCR).
#pragma once

#include "wqspcfg/core/RegInfo.h"

// Barcode readers share no settings beyond those of every service provider.
class WQSPCFG_API CBCRRegInfo : public CRegInfo
{
  public:
    CBCRRegInfo(const CString& strName, bool bPhysicalName);
    ~CBCRRegInfo() override;

    static const wqspcfg::Table& Settings() noexcept;
};
