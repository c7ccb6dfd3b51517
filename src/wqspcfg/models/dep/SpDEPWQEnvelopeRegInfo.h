#pragma once

#include "wqspcfg/classes/DEPRegInfo.h"

// The envelope depository, which has no settings of its own.
class WQSPCFG_API CSpDEPWQEnvelopeRegInfo : public CDEPRegInfo
{
  public:
    CSpDEPWQEnvelopeRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpDEPWQEnvelopeRegInfo() override;

    static const wqspcfg::Table& Settings() noexcept;
};
