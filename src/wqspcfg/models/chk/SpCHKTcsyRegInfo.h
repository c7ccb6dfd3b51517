#pragma once

#include "wqspcfg/classes/CHKRegInfo.h"

// The Tcsy fingerprint reader and its variants.
class WQSPCFG_API CSpCHKTcsyRegInfo : public CCHKRegInfo
{
  public:
    CSpCHKTcsyRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpCHKTcsyRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwPort{};
    DWORD m_dwBaudRate{};
    DWORD m_dwDevType{};
    bool m_bStExtraRetFacInfo{};
};
