#pragma once

#include "wqspcfg/models/shared/CardDispenserParts.h"

// The Tianyi RM3800 card dispenser.
class WQSPCFG_API CSpCRDWQTYRM3800RegInfo : public wqspcfg::NumberedBinDispenser
{
  public:
    CSpCRDWQTYRM3800RegInfo(const CString& strName, bool bPhysicalName);
    ~CSpCRDWQTYRM3800RegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwSupplyBin2Number{};
    DWORD m_dwDispenseBin2Number{};
    DWORD m_dwSupplyBin3Number{};
    DWORD m_dwDispenseBin3Number{};
    DWORD m_dwSupplyBinLow{};
    DWORD m_dwMaxSupplyCard{};
    DWORD m_dwTreatyOfAp{};
    DWORD m_dwPowerOffOption{};
    DWORD m_dwPowerOnOption{};
    DWORD m_dwOpenOption{};
    DWORD m_dwCloseOption{};
    CString m_strLogicalNameOfIDCReader;
    bool m_bAllowRetainOfRetainBinErr{};
};
