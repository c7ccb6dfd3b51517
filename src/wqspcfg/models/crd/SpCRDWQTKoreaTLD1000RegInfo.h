#pragma once

#include "wqspcfg/classes/CRDRegInfo.h"

// The Korean TLD1000 card dispenser.
class WQSPCFG_API CSpCRDWQTKoreaTLD1000RegInfo : public CCRDRegInfo
{
  public:
    CSpCRDWQTKoreaTLD1000RegInfo(const CString& strName, bool bPhysicalName);
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwType;
    DWORD m_dwPort;
    DWORD m_dwBaudRate;
    DWORD m_dwPowerOffOption;
    DWORD m_dwPowerOnOption;
    DWORD m_dwSupplyThreshold;
    DWORD m_dwMaxRetainCard;
    DWORD m_dwRetainBinHigh;
    DWORD m_dwSkimOfInsertCard;
    DWORD m_dwZEntryOfInsertCard;
    DWORD m_dwCheckModeOfInsertCard;
    DWORD m_dwCheckMode;
    DWORD m_dwShutterActionOfInit;
    bool m_bConnectAfterHWError;
    DWORD m_dwCloseOption;
};
