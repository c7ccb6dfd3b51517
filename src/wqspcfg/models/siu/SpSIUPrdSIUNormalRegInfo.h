#pragma once

#include "wqspcfg/classes/SIURegInfo.h"

// The sensors and indicators unit of the product line, whose board is driven by a driver of its own.
class WQSPCFG_API CSpSIUPrdSIUNormalRegInfo : public CSIURegInfo
{
  public:
    CSpSIUPrdSIUNormalRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpSIUPrdSIUNormalRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    CString m_strDN_SIU_NORMAL;
    DWORD m_dwContinueBuzzerOfWithoutSelectAudio{};
    DWORD m_dwUsePowerSwitch{};
    DWORD m_dwUseSafeDoor{};
    DWORD m_dwKeepSupervisorCabinetOpen{};
    DWORD m_dwProximityPresentWaitTime{}; // milliseconds
    bool m_bSetScreenSTByProximityST{};
    DWORD m_dwScreenPowerOffCoolDownTime{};
    bool m_bIsDoorStChangeSwitchSt{};
    DWORD m_dwGuidLightOffOfReset{};
    bool m_bSetCameraGuidLightOn{};
    bool m_bUseAuraLight{};
    DWORD m_dwPoweroffAutoShutdown{};
    DWORD m_dwRearBackLightCtrl{};
    DWORD m_dwFrontBackLightCtrl{};
    CString m_strCabinetOpenBeepPath;
    DWORD m_dwAllowUpsFlashBreakTime{}; // milliseconds
    DWORD m_dwUsePinSta{};
    DWORD m_dwUseKeySta{};
    DWORD m_dwUseCardSta{};
    DWORD m_dwUseProximitySta{};
    CString m_strCardReader;
    CString m_strEncryptor;
    DWORD m_dwPolicyOfCabinetOpen{};
    bool m_bManualResetSkimmerStatus{};
    CString m_strMultiple2One;
    CString m_strOne2Multiple;
};
