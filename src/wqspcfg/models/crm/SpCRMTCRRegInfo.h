#pragma once

#include "wqspcfg/classes/CRMRegInfo.h"

// A teller cash recycler on an OKI driver interface with the cassette slots A (100), B (50), C (20), D (10), E (mixed)
// and R (reject).
class WQSPCFG_API CSpCRMTCRRegInfo : public CCRMRegInfo
{
  public:
    struct tagSlot
    {
        DWORD dwCasType;   // 0x00 recycle, 0xFFFFFFFF dispense only, 0x01 deposit only, 0x02 mixed, 0x04 reject
        DWORD dwCasValues; // denomination, 0 none
    };

    CSpCRMTCRRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpCRMTCRRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    tagSlot m_arSlot[6]{};
    DWORD m_dwDriverCommandTimeOut{};
    DWORD m_dwDispNotEnoughRet{};
    bool m_bCashOutAPI{};
    DWORD m_dwDisplayRJEveryCountInfo{};
    DWORD m_dwBlankRunIfLastCashInStatusErr{};
};
