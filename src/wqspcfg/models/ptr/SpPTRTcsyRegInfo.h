#pragma once

#include "wqspcfg/classes/PTRRegInfo.h"

// The Tcsy fingerprint collector, served as a printer.
class WQSPCFG_API CSpPTRTcsyRegInfo : public CPTRRegInfo
{
  public:
    CSpPTRTcsyRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpPTRTcsyRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwPort{};
    DWORD m_dwType{};
    bool m_bOnlyGetFeature{};
    DWORD m_dwFeatureTimeOut{};
    bool m_bStExtraRetFacInfo{};
    DWORD m_dwEventBroTime{};
};
