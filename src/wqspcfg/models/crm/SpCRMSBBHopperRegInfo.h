#pragma once

#include "wqspcfg/classes/CRMRegInfo.h"

// A coin dispenser with one hopper, slot A.
class WQSPCFG_API CSpCRMSBBHopperRegInfo : public CCRMRegInfo
{
  public:
    CSpCRMSBBHopperRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpCRMSBBHopperRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwUnitPhyPosName{};
    DWORD m_dwCurrentCasCount{};
    DWORD m_dwType{};
    DWORD m_dwCasFull{};
    DWORD m_dwCasNearFull{};
    DWORD m_dwCasEmpty{};
    DWORD m_dwCasNearEmpty{};
    DWORD m_dwPort{};
    DWORD m_dwBaudRate{};
    DWORD m_dwOnlyDispenseTimeOut{};
    DWORD m_dwAutoRecoverCount{};
};
