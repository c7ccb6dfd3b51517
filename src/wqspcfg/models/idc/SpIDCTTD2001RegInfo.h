#pragma once

#include "wqspcfg/classes/IDCRegInfo.h"

// The TTD2001 card reader with a shutter.
class WQSPCFG_API CSpIDCTTD2001RegInfo : public CIDCRegInfo
{
  public:
    CSpIDCTTD2001RegInfo(const CString& strName, bool bPhysicalName);
    ~CSpIDCTTD2001RegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwPort{};
    DWORD m_dwBautRate{};
    DWORD m_dwCloseShutterTime{}; // seconds
    DWORD m_dwDevType{};
    CString m_strIniPath;
    bool m_bLowPowerAlarm{};
};
