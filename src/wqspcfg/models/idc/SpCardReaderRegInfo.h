#pragma once

#include "wqspcfg/classes/IDCRegInfo.h"

// A motorised card reader.
class WQSPCFG_API CSpCardReaderRegInfo : public CIDCRegInfo
{
  public:
    CSpCardReaderRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpCardReaderRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwType{};
    DWORD m_dwPort{};
    DWORD m_dwBaudRate{};
    DWORD m_dwPowerOffOption{};
    DWORD m_dwSpCloseOption{};
    DWORD m_dwPowerOnOption{};
    DWORD m_dwPolicyOfSetMediaEntering{};
    DWORD m_dwSkimOfInsertCard{};
    bool m_bUnPresentOfMoveCardManual{};
    bool m_bNeedResetOfRecoverSkimmerSt{};
    bool m_bIsUseSLE4442{};
    bool m_bToReadPositionIfNoActionReset{};
    DWORD m_dwTimeDelayOnline{}; // seconds
    DWORD m_dwInitRelationEjectVolume{};
};
