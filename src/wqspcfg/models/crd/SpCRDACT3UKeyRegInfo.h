#pragma once

#include "wqspcfg/classes/CRDRegInfo.h"

// The ACT3 USB-key dispenser.
class WQSPCFG_API CSpCRDACT3UKeyRegInfo : public CCRDRegInfo
{
  public:
    CSpCRDACT3UKeyRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpCRDACT3UKeyRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwDevType{};
    DWORD m_dwApProtocolType{};
    DWORD m_dwPort{};
    DWORD m_dwBaudRate{};
    DWORD m_dwSupplyBinCount{};
    DWORD m_dwRetainBinCount{};
    DWORD m_dwSupplyBinLow{};
    DWORD m_dwSupplyBinMax{};
    DWORD m_dwTimesToTryWhenFail{};
    bool m_bAllowResetWithRetainOnFull{};
    DWORD m_dwDispenseBin1{};
    DWORD m_dwRetainBin{};
    DWORD m_dwAutoRetainTime{};
    bool m_bResetTransConstruct{};
    bool m_bPreDispenseCard{};
    bool m_bRetainOnClose{};
    DWORD m_dwPowerOnOption{};
};
