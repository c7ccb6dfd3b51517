#pragma once

#include "wqspcfg/classes/PTRRegInfo.h"

// The MaiDi V3 finger-vein reader, served as a printer.
class WQSPCFG_API CSpPTRMaiDiV3RegInfo : public CPTRRegInfo
{
  public:
    CSpPTRMaiDiV3RegInfo(const CString& strName, bool bPhysicalName);
    ~CSpPTRMaiDiV3RegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwGetFeatureTimeOut{};
    DWORD m_dwRetryTimeWhenFaliue{};
};
