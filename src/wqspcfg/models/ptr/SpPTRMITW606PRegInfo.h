#pragma once

#include "wqspcfg/classes/PTRRegInfo.h"

// The W606P device, served as a printer.
class WQSPCFG_API CSpPTRMITW606PRegInfo : public CPTRRegInfo
{
  public:
    CSpPTRMITW606PRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpPTRMITW606PRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;
};
