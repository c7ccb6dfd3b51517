#pragma once

#include "wqspcfg/classes/CRDRegInfo.h"

// The Sankyo 3A7230 card dispenser.
class WQSPCFG_API CSpCRDWQTSankyo3A7230RegInfo : public CCRDRegInfo
{
  public:
    CSpCRDWQTSankyo3A7230RegInfo(const CString& strName, bool bPhysicalName);
    ~CSpCRDWQTSankyo3A7230RegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwType{};
    DWORD m_dwPort{};
    DWORD m_dwBaudRate{};
    DWORD m_dwPowerOffOption{};
    DWORD m_dwPowerOnOption{};
    DWORD m_dwCloseOption{};
    DWORD m_dwDispenseBin{};
    DWORD m_dwRetainBin{};
    DWORD m_dwDispenseTo{};
    DWORD m_dwSkimOfInsertCard{};
    DWORD m_dwMaxSupplyCard{};
    DWORD m_dwSupplyBinLow{};
    DWORD m_dwDevType{};
    DWORD m_dwCardUnitAssemble{};
    bool m_bNeedSupportMediaLatched{};
    bool m_bSendThresholdEvt{};
    bool m_bDisabledReInsertCard{};
};
