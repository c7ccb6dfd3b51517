#pragma once

#include "wqspcfg/classes/SIURegInfo.h"
#include "wqspcfg/parts/SafeAgent.h"

namespace wqspcfg {

// A port of the XFS interface.
struct XFSPort
{
    enum class Kind : BYTE
    {
        None, // not used, or its type is unknown
        Sensor,
        Door,
        Indicator,
        Auxiliary,
        GuidLight,
    };
    Kind kind = Kind::None;
    WORD wIndex = 0; // in the kind's array of the capabilities
};

// A light or a switch of the TEK0816 board, and the XFS port that Load has resolved for it.
struct TEK0816Port
{
    DWORD dwIndex{};
    DWORD dwPol{};
    CString strToType;
    XFSPort port;
};

} // namespace wqspcfg

// The TEK0816 controller board, with an anti-skimming unit, a UPS, and a second serial controller for the screens.
//
// A light or a switch is not used when its index is -1. Otherwise its type tells its XFS port, without regard to case:
// - the name of a port as the capabilities have it (CARDUNIT, CABINET, OPERATORSWITCH, INDICATOR_4): that port;
// - a kind of port (LIGHT or GUIDLIGHT, DOOR, SENSOR, INDICATOR, AUXILIARY or AUXILIARIE): the port of that kind at the
//   index of the light or switch;
// - a kind of port, "_" and a decimal number (DOOR_1): the port of that kind at that number.
// Any other type, and an index that the kind's array does not have, gives no port.
class WQSPCFG_API CSpSIUTEK0816RegInfo : public CSIURegInfo, public wqspcfg::SafeAgent
{
  public:
    static constexpr unsigned kLights = 16;
    static constexpr unsigned kSwitches = 8;

    CSpSIUTEK0816RegInfo(const CString& strName, bool bPhysicalName);
    ~CSpSIUTEK0816RegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwPort{};
    DWORD m_dwBaudRate{};
    DWORD m_dwPortScr{};
    DWORD m_dwBaudRateScr{};
    bool m_bIsDoorStChangeSwitchSt{};
    bool m_bCloseAsOpen{};
    bool m_bBSTIsUsed{};
    DWORD m_dwCoolingTime{};
    bool m_bManualResetSkimmerStatus{};
    DWORD m_dwUseSafeAgent{};
    wqspcfg::TEK0816Port m_arLight[kLights];    // light n at n - 1
    wqspcfg::TEK0816Port m_arSwitch[kSwitches]; // switch n at n - 1
    bool m_bUseSBUPS{};
    DWORD m_dwSBDevType{};
    DWORD m_dwUPSBaudRate{};
    DWORD m_dwUPSPort{};
    // Sound files; empty: silent.
    CString m_strSlowFlash;
    CString m_strQuickFlash;
    CString m_strMediumFlash;
    DWORD m_dwSIUTYPE{};
    DWORD m_dwRearUpDoorRelationCabinet{};
    DWORD m_dwKeepSupervisorCabinetOpen{};
    bool m_bUseAuraLight{};
    bool m_bSetScreenSTByProximityST{};
    DWORD m_dwScreenPowerOffCoolDownTime{};
    bool m_bSetCameraGuidLightOn{};
    DWORD m_dwDecorateDoorRelateCabinet{};

  private:
    static wqspcfg::XFSPort ResolveXFSInd(const CString& strType, DWORD dwIndex);
};
