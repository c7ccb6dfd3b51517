#pragma once

#include "wqspcfg/classes/CRMRegInfo.h"
#include "wqspcfg/parts/CassetteSlot.h"

// A coin dispenser of the second generation with the hoppers A, B and C.
class WQSPCFG_API CSpCRMSBBHopperMk2RegInfo : public CCRMRegInfo
{
  public:
    CSpCRMSBBHopperMk2RegInfo(const CString& strName, bool bPhysicalName);
    ~CSpCRMSBBHopperMk2RegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwUnitPhyPosName{};
    tagCoinHopper m_arSlot[3]{};
    DWORD m_dwPort{};
    DWORD m_dwBaudRate{};
    DWORD m_dwDispenseTimeOut{};
    DWORD m_dwAutoRecoverCount{};
};
