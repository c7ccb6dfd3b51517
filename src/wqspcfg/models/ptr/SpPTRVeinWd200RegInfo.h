#pragma once

#include "wqspcfg/classes/PTRRegInfo.h"

// The Wd200 finger-vein reader, served as a printer.
class WQSPCFG_API CSpPTRVeinWd200RegInfo : public CPTRRegInfo
{
  public:
    CSpPTRVeinWd200RegInfo(const CString& strName, bool bPhysicalName);
    ~CSpPTRVeinWd200RegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;
};
