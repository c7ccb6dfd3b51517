#pragma once

#include "wqspcfg/models/shared/CoinRecycler.h"

// The Fujitsu CRF3 coin recycler with the hoppers A (1 yuan), B (5 jiao), C (1 jiao) and R (retract).
class WQSPCFG_API CSpCRMFujitsuCRF3RegInfo : public wqspcfg::CoinRecycler
{
  public:
    CSpCRMFujitsuCRF3RegInfo(const CString& strName, bool bPhysicalName);
    ~CSpCRMFujitsuCRF3RegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwPort{};
    DWORD m_dwBaudRate{};
    DWORD m_dwOnlyDepositTimeOut{};
    DWORD m_dwOnlyDispenseTimeOut{};
    bool m_bDepositRejectType{};
    DWORD m_dwActionWhenSpStart{};
    DWORD m_dwAutoRecoverCount{};
    DWORD m_dw100VerifyLevel{};
    DWORD m_dw50VerifyLevel{};
    DWORD m_dwNew10VerifyLevel{};
    DWORD m_dw10VerifyLevel{};
    DWORD m_dwOld10VerifyLevel{};
};
