#pragma once

#include "wqspcfg/classes/CRDRegInfo.h"

// The Tianyi 2000 card dispenser.
class WQSPCFG_API CSpCRDTY2000RegInfo : public CCRDRegInfo
{
  public:
    CSpCRDTY2000RegInfo(const CString& strName, bool bPhysicalName);
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwPort;
    DWORD m_dwBaudRate;
    DWORD m_dwRetainBinNumber;
    DWORD m_dwRetainBin;
    DWORD m_dwSupplyBin1Number;
    DWORD m_dwDispenseBin1Number;
    DWORD m_dwSupplyBinLow;
    DWORD m_dwMaxSupplyCard;
    DWORD m_dwTreatyOfAp;
    DWORD m_dwPowerOnOffAction;
};
