#pragma once

#include "wqspcfg/classes/CRDRegInfo.h"

// The ACT F5-5340 card dispenser.
class WQSPCFG_API CSpCRDWQACTF55340RegInfo : public CCRDRegInfo
{
  public:
    CSpCRDWQACTF55340RegInfo(const CString& strName, bool bPhysicalName);
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwPort;
    DWORD m_dwBaudRate;
    DWORD m_dwPowerOnOption;
    DWORD m_dwCloseOption;
    DWORD m_dwDispenseBin1;
    DWORD m_dwDispenseBin2;
    DWORD m_dwRetainBin;
    DWORD m_dwMaxSupplyCard;
    DWORD m_dwSupplyBinLow;
    DWORD m_dwRetainBinStatus;
    bool m_bNeedSupportMediaLatched;
    bool m_bAllowDispenseOfRetainBinErr;
    DWORD m_dwReConnectSuccessOption;
};
