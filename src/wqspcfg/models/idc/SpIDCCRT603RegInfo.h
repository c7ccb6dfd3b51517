#pragma once

#include "wqspcfg/classes/IDCRegInfo.h"

// The CRT603 card reader, with the settings of every card reader and none of its own.
class WQSPCFG_API CSpIDCCRT603RegInfo : public CIDCRegInfo
{
  public:
    CSpIDCCRT603RegInfo(const CString& strName, bool bPhysicalName);
    ~CSpIDCCRT603RegInfo() override;

    static const wqspcfg::Table& Settings() noexcept;
};
