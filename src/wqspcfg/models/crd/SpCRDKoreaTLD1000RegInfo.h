#pragma once

#include "wqspcfg/classes/IDCRegInfo.h"
#include "wqspcfg/models/shared/CardDispenserParts.h"

// The Korean TLD1000 card dispenser, run as a card reader with a dispensing unit.
class WQSPCFG_API CSpCRDKoreaTLD1000RegInfo : public wqspcfg::TLD1000Dispenser<CIDCRegInfo>
{
  public:
    CSpCRDKoreaTLD1000RegInfo(const CString& strName, bool bPhysicalName);
    ~CSpCRDKoreaTLD1000RegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwDispenseCardStyle{};
};
