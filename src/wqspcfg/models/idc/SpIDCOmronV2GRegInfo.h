#pragma once

#include "wqspcfg/classes/IDCRegInfo.h"

// The Omron V2G motorised card reader.
class WQSPCFG_API CSpIDCOmronV2GRegInfo : public CIDCRegInfo
{
  public:
    CSpIDCOmronV2GRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpIDCOmronV2GRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwPowerOffOption{};
    DWORD m_dwPowerOnOption{};
    DWORD m_dwType{};
    DWORD m_dwPort{};
    DWORD m_dwBaudRate{};
    DWORD m_dwVendorID{};
    DWORD m_dwProductID{};
    DWORD m_dwSkimOfInsertCard{};
    bool m_bNeedResetOfRecoverSkimmerSt{};
    bool m_bIsUseSLE4442{};
    DWORD m_dwPolicyOfSetMediaEntering{};
    bool m_bUnPresentOfMoveCardManual{};
    bool m_bToReadPositionIfNoActionReset{};
    DWORD m_dwTimeDelayOnline{}; // seconds
    DWORD m_dwInitRelationEjectVolume{};
};
