// Settings of sensors and indicators units (XFS class SIU).
#pragma once

#include "wqspcfg/core/RegInfo.h"
#include "wqspcfg/platform/framework/FrameworkTypes.h"
#include "wqspcfg/platform/xfs/XfsSiu.h"

// The capabilities of the unit, the ports whose events are enabled without a WFS_CMD_SIU_ENABLE_EVENTS command, and the
// key mapping of the USB keyboard agent.
//
// What Save writes of the capabilities is less than what Load reads:
// - the call button, the indicators from 4 on and the guidance lights from 13 on are never written;
// - of the operator switch and the UPS, WFS_SIU_AVAILABLE is not, and of all other sensors and auxiliaries
//   WFS_SIU_NOT_AVAILABLE is not; the cabinet and the safe lose their keyboard and service states, the vandal shield
//   its bolted state;
// - the volume steps are written as their lowest bit: 1000 steps are 0 after the next Load.
// So what is loaded next may differ: a UPS 0x1F without WFS_SIU_AVAILABLE in the registry comes back as 0x1E, and the
// next Save writes it as not available, so that the Load after that gives 0 whatever its states are.
class WQSPCFG_API CSIURegInfo : public CRegInfo
{
  public:
    CSIURegInfo(const CString& strName, bool bPhysicalName);
    ~CSIURegInfo() override;
    // False when the keyboard agent's key mapping or its CanpostKeyEvent is missing; everything else is loaded all the
    // same.
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    alignas(void*) _wfs_siu_caps m_stSiuCaps = {}; // packed: it would stand at an odd address
    CMapStringToString m_mapKeyboardMapping;       // by the number of the key, "1" to "24" at least
    DWORD m_dwCanpostKeyEvent{};                   // nonzero: PC key presses are simulated
    BYTE m_byReserved[512] = {};
    DWORD m_dwThinkOfDevStatusWhenEnableEvents{};
    // 1: the port's events are enabled automatically. Load sets flags and never clears one.
    BYTE m_bySensorAutoEnable[32] = {};
    BYTE m_byDoorAutoEnable[16] = {};
    BYTE m_byIndicatorAutoEnable[16] = {};
    BYTE m_byAuxiliaryAutoEnable[16] = {};
    BYTE m_byGuidLightAutoEnable[16] = {};
    CStringArray m_arHandsetSendEveWindowNames;
    // Window event identifiers of the handset.
    DWORD m_dwEBphoneHangon{};
    DWORD m_dwEBPhoneHangup{};
    DWORD m_dwEBPhoneError{};
    DWORD m_dwSetStatusNotAvailableWhenSetFail{};
    // The key AutoEnable as Load found it, and as the flags say it after Save, which writes no 0 and removes nothing.
    CMapStringToString m_mapAutoEnable;

  private:
    void GetSensorsCap(_wfs_siu_caps* pCaps, CLog* pLog);
    void GetDoorsCap(_wfs_siu_caps* pCaps, CLog* pLog);
    void GetIndicatorsCap(_wfs_siu_caps* pCaps, CLog* pLog);
    void GetAuxiliariesCap(_wfs_siu_caps* pCaps, CLog* pLog);
    void GetGuidlightsCap(_wfs_siu_caps* pCaps, CLog* pLog);
    void SetSensorsCap(_wfs_siu_caps* pCaps);
    void SetDoorsCap(_wfs_siu_caps* pCaps);
    void SetIndicatorsCap(_wfs_siu_caps* pCaps);
    void SetAuxiliariesCap(_wfs_siu_caps* pCaps);
    void SetGuidlightsCap(_wfs_siu_caps* pCaps);
    void LoadEnableStatus(CLog* pLog);
    void SetEnableStatus(const CString& strValueName, CLog* pLog);
    void SaveEnableStatus();
};
