#pragma once

#include "wqspcfg/classes/IDCRegInfo.h"

// The magnetic-stripe card reader of the DC T10N.
class WQSPCFG_API CSpIDCDCT10NMAGRegInfo : public CIDCRegInfo
{
  public:
    CSpIDCDCT10NMAGRegInfo(const CString& strName, bool bPhysicalName);
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwBaudRate;
    DWORD m_dwPort;
    DWORD m_dwCpuCardType;
    DWORD m_dwTimesOfGetStIfSwitchLed;
    DWORD m_dwTimeOutOfReadMagCard; // seconds
};
