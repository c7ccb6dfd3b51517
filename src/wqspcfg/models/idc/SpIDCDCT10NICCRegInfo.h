#pragma once

#include "wqspcfg/classes/IDCRegInfo.h"

// The chip card reader of the DC T10N.
class WQSPCFG_API CSpIDCDCT10NICCRegInfo : public CIDCRegInfo
{
  public:
    CSpIDCDCT10NICCRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpIDCDCT10NICCRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwBaudRate{};
    DWORD m_dwPort{};
    DWORD m_dwTimesOfGetStIfSwitchLed{};
    bool m_bTranformIC2Hex{};
};
