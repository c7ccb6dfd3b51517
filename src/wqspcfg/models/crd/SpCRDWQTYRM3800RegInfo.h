#pragma once

#include "wqspcfg/classes/CRDRegInfo.h"

// The Tianyi RM3800 card dispenser.
class WQSPCFG_API CSpCRDWQTYRM3800RegInfo : public CCRDRegInfo
{
  public:
    CSpCRDWQTYRM3800RegInfo(const CString& strName, bool bPhysicalName);
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwPort;
    DWORD m_dwBaudRate;
    DWORD m_dwRetainBinNumber;
    DWORD m_dwRetainBin;
    DWORD m_dwSupplyBin1Number;
    DWORD m_dwDispenseBin1Number;
    DWORD m_dwSupplyBin2Number;
    DWORD m_dwDispenseBin2Number;
    DWORD m_dwSupplyBin3Number;
    DWORD m_dwDispenseBin3Number;
    DWORD m_dwSupplyBinLow;
    DWORD m_dwMaxSupplyCard;
    DWORD m_dwTreatyOfAp;
    DWORD m_dwPowerOffOption;
    DWORD m_dwPowerOnOption;
    DWORD m_dwOpenOption;
    DWORD m_dwCloseOption;
    CString m_strLogicalNameOfIDCReader;
    bool m_bAllowRetainOfRetainBinErr;
};
