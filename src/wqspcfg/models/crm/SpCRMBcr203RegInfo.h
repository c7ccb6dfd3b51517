#pragma once

#include "wqspcfg/models/shared/CoinRecycler.h"

// A coin recycler with the hoppers A (1 yuan), B (5 jiao), C (1 jiao) and R (retract).
class WQSPCFG_API CSpCRMBcr203RegInfo : public wqspcfg::CoinRecycler
{
  public:
    CSpCRMBcr203RegInfo(const CString& strName, bool bPhysicalName);
    ~CSpCRMBcr203RegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwPort{};
    DWORD m_dwBaudRate{};
    DWORD m_dwDepositTimeOut{};
    DWORD m_dwDepositTimeOfWaiting{};
    DWORD m_dwDepositBeltTimeOut{};
    DWORD m_dwProcDenom100{};
    DWORD m_dwProcDenom050{};
    DWORD m_dwProcDenom010{};
    DWORD m_dwDispenseTimeOut{};
    DWORD m_dwDispenseBeltTimeOut{};
    DWORD m_dwClearHopperBeltTimeOut{};
    DWORD m_dwResetTimeOut{};
    DWORD m_dwAutoRecoverCount{};
};
