#pragma once

#include "wqspcfg/classes/IDCRegInfo.h"

// The TTCE M100 motorised card reader.
class WQSPCFG_API CSpIDCTTCEM100RegInfo : public CIDCRegInfo
{
  public:
    CSpIDCTTCEM100RegInfo(const CString& strName, bool bPhysicalName);
    ~CSpIDCTTCEM100RegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwPort{};
    DWORD m_dwBaudRate{};
    DWORD m_dwPolicyOfSetMediaEntering{};
    DWORD m_dwSkimOfInsertCard{};
    DWORD m_dwPowerOffOption{};
    DWORD m_dwPowerOnOption{};
};
