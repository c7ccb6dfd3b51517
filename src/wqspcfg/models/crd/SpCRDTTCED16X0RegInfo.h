#pragma once

#include "wqspcfg/classes/CRDRegInfo.h"

// The TTCE D16X0 card dispenser.
class WQSPCFG_API CSpCRDTTCED16X0RegInfo : public CCRDRegInfo
{
  public:
    CSpCRDTTCED16X0RegInfo(const CString& strName, bool bPhysicalName);
    ~CSpCRDTTCED16X0RegInfo() override;
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
    DWORD m_dwPowerOnOption{};
    DWORD m_dwTimesToTryWhenFail{};
    DWORD m_dwPolicyOfRetainBin{};
    bool m_bAllowResetWithRetainOnFull{};
    bool m_bAllowDisWithRetainBinPhyFull{};
    bool m_bAllowDisWithRetainBinLogicFull{};
    DWORD m_dwSupplyBinIniCount{};
    DWORD m_dwPolicyOfExtraSuppBinST{};
    DWORD m_dwPowerOffOption{};
    DWORD m_dwShutterErrOption{};
};
