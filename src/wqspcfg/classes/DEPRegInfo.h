// Settings of depositories (XFS class DEP).
#pragma once

#include "wqspcfg/core/RegInfo.h"

// Depositories share no settings beyond those of every service provider.
class WQSPCFG_API CDEPRegInfo : public CRegInfo
{
  public:
    CDEPRegInfo(const CString& strName, bool bPhysicalName);
    ~CDEPRegInfo() override;

    static const wqspcfg::Table& Settings() noexcept;
};
