#pragma once

#include "wqspcfg/models/shared/CardDispenserParts.h"

// The Tianyi 2000 card dispenser.
class WQSPCFG_API CSpCRDTY2000RegInfo : public wqspcfg::NumberedBinDispenser
{
  public:
    CSpCRDTY2000RegInfo(const CString& strName, bool bPhysicalName);
    ~CSpCRDTY2000RegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwSupplyBinLow{};
    DWORD m_dwMaxSupplyCard{};
    DWORD m_dwTreatyOfAp{};
    DWORD m_dwPowerOnOffAction{};
};
