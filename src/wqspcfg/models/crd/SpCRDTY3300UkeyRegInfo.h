#pragma once

#include "wqspcfg/classes/CRDRegInfo.h"

// The Tianyi 3300 USB-key dispenser.
class WQSPCFG_API CSpCRDTY3300UkeyRegInfo : public CCRDRegInfo
{
  public:
    CSpCRDTY3300UkeyRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpCRDTY3300UkeyRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwPort{};
    DWORD m_dwBaudRate{};
    DWORD m_dwTimesToTryWhenFail{};
    DWORD m_dwNumDispenseBin{};
    DWORD m_dwNumRetainBin{};
    DWORD m_dwPowerOffOption{};
    DWORD m_dwOpenOption{};
    DWORD m_dwCloseOption{};
    DWORD m_dwApProtocolType{};
};
