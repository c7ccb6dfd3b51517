#pragma once

#include "wqspcfg/models/shared/CardDispenserParts.h"

// The TTCE K201 card dispenser.
class WQSPCFG_API CSpCRDTTCEK201RegInfo : public wqspcfg::NumberedBinDispenser
{
  public:
    CSpCRDTTCEK201RegInfo(const CString& strName, bool bPhysicalName);
    ~CSpCRDTTCEK201RegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwSupplyBinLow{};
    DWORD m_dwMaxSupplyCard{};
};
