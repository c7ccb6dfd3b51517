#pragma once

#include "wqspcfg/classes/CRDRegInfo.h"

// The WQ0501 dispenser.
class WQSPCFG_API CSpCRDWQ0501RegInfo : public CCRDRegInfo
{
  public:
    CSpCRDWQ0501RegInfo(const CString& strName, bool bPhysicalName);
    ~CSpCRDWQ0501RegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwPort{};
    DWORD m_dwBaudRate{};
    DWORD m_dwWholeBoxCount{};
    DWORD m_dwSingelBoxCount{};
    DWORD m_dwSupplyBinLow{};
    DWORD m_dwRetainCount{};
    DWORD m_dwRetainBinHigh{};
    DWORD m_dwRetainBinFull{};
    CString m_strCheckNOSaveDir;
    CString m_strCheckNOPicSaveDir;
    CString m_strCheckNOLocalSaveDir;
    DWORD m_dwSupplyBinMax{};
};
