#pragma once

#include "wqspcfg/classes/IDCRegInfo.h"

// A motorised card reader behind a device driver module.
class WQSPCFG_API CSpIDCPrdCardReaderRegInfo : public CIDCRegInfo
{
  public:
    CSpIDCPrdCardReaderRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpIDCPrdCardReaderRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    CString m_strDN_IDC_MOTOR;
    DWORD m_dwPowerOffOption{};
    DWORD m_dwSpCloseOption{};
    DWORD m_dwPowerOnOption{};
    DWORD m_dwSkimOfInsertCard{};
    bool m_bUnPresentOfMoveCardManual{};
    bool m_bNeedResetOfRecoverSkimmerSt{};
    bool m_bToReadPositionIfNoActionReset{};
    DWORD m_dwTimeDelayOnline{}; // seconds
};
