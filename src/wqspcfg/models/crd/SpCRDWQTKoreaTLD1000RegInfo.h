#pragma once

#include "wqspcfg/models/shared/CardDispenserParts.h"

// The Korean TLD1000 card dispenser.
class WQSPCFG_API CSpCRDWQTKoreaTLD1000RegInfo : public wqspcfg::TLD1000Dispenser<CCRDRegInfo>
{
  public:
    CSpCRDWQTKoreaTLD1000RegInfo(const CString& strName, bool bPhysicalName);
    ~CSpCRDWQTKoreaTLD1000RegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwSupplyThreshold{};
    DWORD m_dwMaxRetainCard{};
    DWORD m_dwRetainBinHigh{};
};
