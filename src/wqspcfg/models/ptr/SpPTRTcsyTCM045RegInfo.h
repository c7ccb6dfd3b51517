#pragma once

#include "wqspcfg/classes/PTRRegInfo.h"

// The Tcsy TCM045 fingerprint collector, served as a printer.
class WQSPCFG_API CSpPTRTcsyTCM045RegInfo : public CPTRRegInfo
{
  public:
    CSpPTRTcsyTCM045RegInfo(const CString& strName, bool bPhysicalName);
    ~CSpPTRTcsyTCM045RegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwMatchLev{};
    DWORD m_dwType{};
    DWORD m_dwPort{};
    DWORD m_dwBautRateIndex{};
    bool m_bSentMediatakenWaitFingerUp{};
    DWORD m_dwRetrunFinPicOrData{};
    DWORD m_dwRetrunWhat{};
};
