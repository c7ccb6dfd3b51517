#pragma once

#include "wqspcfg/classes/CRDRegInfo.h"

// The Tianyi RM3000 card dispenser.
class WQSPCFG_API CSpCRDWQTYRM3000RegInfo : public CCRDRegInfo
{
  public:
    CSpCRDWQTYRM3000RegInfo(const CString& strName, bool bPhysicalName);
    ~CSpCRDWQTYRM3000RegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwType{};
    DWORD m_dwPort{};
    DWORD m_dwBaudRate{};
    DWORD m_dwCountSupplyBin{};
    DWORD m_dwPowerOffOption{};
    DWORD m_dwPowerOnOption{};
    DWORD m_dwCloseOption{};
    DWORD m_dwDispenseBin1{};
    DWORD m_dwDispenseBin2{};
    DWORD m_dwRetainBin{};
    DWORD m_dwDispenseTo{};
    DWORD m_dwSkimOfInsertCard{};
    DWORD m_dwMaxSupplyCard{};
    DWORD m_dwSupplyBinLow{};
    DWORD m_dwActionOfSliderCardForDispense{};
    DWORD m_dwActionOfSliderCardForEjectCard{};
    DWORD m_dwCountForceDispense{};
    DWORD m_dwRetainBinStatus{};
    bool m_bNeedSupportMediaLatched{};
};
