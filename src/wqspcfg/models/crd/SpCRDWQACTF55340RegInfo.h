#pragma once

#include "wqspcfg/models/shared/CardDispenserParts.h"

// The ACT F5-5340 card dispenser.
class WQSPCFG_API CSpCRDWQACTF55340RegInfo : public wqspcfg::TwoBinDispenser
{
  public:
    CSpCRDWQACTF55340RegInfo(const CString& strName, bool bPhysicalName);
    ~CSpCRDWQACTF55340RegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwPort{};
    DWORD m_dwBaudRate{};
    DWORD m_dwPowerOnOption{};
    DWORD m_dwCloseOption{};
    DWORD m_dwReConnectSuccessOption{};
};
