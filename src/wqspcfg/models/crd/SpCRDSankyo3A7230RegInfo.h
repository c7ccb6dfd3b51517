#pragma once

#include "wqspcfg/classes/IDCRegInfo.h"

// The Sankyo 3A7230 card dispenser, run as a card reader with a dispensing unit (the issuing unit).
class WQSPCFG_API CSpCRDSankyo3A7230RegInfo : public CIDCRegInfo
{
  public:
    CSpCRDSankyo3A7230RegInfo(const CString& strName, bool bPhysicalName);
    ~CSpCRDSankyo3A7230RegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwType{};
    DWORD m_dwPort{};
    DWORD m_dwBaudRate{};
    DWORD m_dwPowerOffOption{};
    DWORD m_dwPowerOnOption{};
    DWORD m_dwSkimOfInsertCard{};
    DWORD m_dwIDCRetainBinStatus{};
    DWORD m_dwISCRetainBinStatus{};
    DWORD m_dwISCPowerOffOption{};
    DWORD m_dwISCPowerOnOption{};
    bool m_bInitBeforeDispenseCard{};
    bool m_bInitBeforeReadCard{};
    DWORD m_dwDevType{};
};
