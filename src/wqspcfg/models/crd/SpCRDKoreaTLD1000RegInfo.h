#pragma once

#include "wqspcfg/classes/IDCRegInfo.h"

// The Korean TLD1000 card dispenser, run as a card reader with a dispensing unit.
class WQSPCFG_API CSpCRDKoreaTLD1000RegInfo : public CIDCRegInfo
{
  public:
    CSpCRDKoreaTLD1000RegInfo(const CString& strName, bool bPhysicalName);
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwType;
    DWORD m_dwPort;
    DWORD m_dwBaudRate;
    DWORD m_dwPowerOffOption;
    DWORD m_dwPowerOnOption;
    DWORD m_dwSkimOfInsertCard;
    DWORD m_dwZEntryOfInsertCard;
    DWORD m_dwCheckModeOfInsertCard;
    DWORD m_dwCheckMode;
    DWORD m_dwShutterActionOfInit;
    bool m_bConnectAfterHWError;
    DWORD m_dwCloseOption;
    DWORD m_dwDispenseCardStyle;
};
