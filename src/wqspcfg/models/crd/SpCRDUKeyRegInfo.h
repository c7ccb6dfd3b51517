#pragma once

#include "wqspcfg/classes/CRDRegInfo.h"

// A USB-key dispenser.
class WQSPCFG_API CSpCRDUKeyRegInfo : public CCRDRegInfo
{
  public:
    CSpCRDUKeyRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpCRDUKeyRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwPort{};
    DWORD m_dwBaudRate{};
    DWORD m_dwMaxUKeyCount{};
    DWORD m_dwNumOfConfUKey{};
    DWORD m_dwUKeyType{};
    DWORD m_dwWaitUKeyTakenTime{};
    DWORD m_dwSupplyBinLow{};
    DWORD m_dwSupplyBinMax{};
    DWORD m_dwSupplyBinIniCount{};
    bool m_bCardIsSupply{};
};
