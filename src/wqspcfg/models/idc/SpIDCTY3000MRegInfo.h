#pragma once

#include "wqspcfg/classes/IDCRegInfo.h"

// The TY3000M motorised card reader.
class WQSPCFG_API CSpIDCTY3000MRegInfo : public CIDCRegInfo
{
  public:
    CSpIDCTY3000MRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpIDCTY3000MRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwPort{};
    DWORD m_dwBaudRate{};
    DWORD m_dwPowerOffOption{};
    DWORD m_dwPowerOnOption{};
    DWORD m_dwPolicyOfSetMediaEntering{};
    bool m_bUnPresentOfMoveCardManual{};
    bool m_bToReadPositionIfNoActionReset{};
    DWORD m_dwTimeDelayOnline{}; // seconds
};
