#pragma once

#include "wqspcfg/classes/SIURegInfo.h"
#include "wqspcfg/parts/SafeAgent.h"

#include <array>
#include <memory>

// One use of a light output of the controller board: the guidance light of the XFS capabilities that it stands for.
struct tagPhyLightToXFSIndex
{
    WORD wPhyLight = 0;
    WORD wXFSIndex = 0;

    tagPhyLightToXFSIndex() = default;
    tagPhyLightToXFSIndex(WORD wLight, WORD wIndex) : wPhyLight(wLight), wXFSIndex(wIndex) {}
};

// The CABC controller board, with an anti-skimming unit and an external UPS.
//
// The lights of the board are mapped to guidance lights. Where the cash module's driver (service TARNO_RECYCLE) is
// WQSPCRMWQ07, the cash module has a light of its own: board light 5 becomes its guidance light, and what the registry
// says of light 5 is neither read nor written. Otherwise board light 0 is mapped to the notes dispenser's light.
//
// Save writes the text of a light only where m_arLightMap maps the light otherwise than the text that Load read: a text
// that cannot be held as numbers, such as "3;9", stays as it is until the light is mapped anew.
class WQSPCFG_API CSpSIUCABCRegInfo : public CSIURegInfo, public wqspcfg::SafeAgent
{
  public:
    static constexpr unsigned kLights = 12; // whose mapping is configured, from light 5 on
    using LightMap = CArray<tagPhyLightToXFSIndex, const tagPhyLightToXFSIndex&>;

    CSpSIUCABCRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpSIUCABCRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwSetTamperStOfDependTermType{};
    DWORD m_dwRecoverUpsStOfFlashBreak{};
    DWORD m_dwConvertOnOffToFlush{};
    DWORD m_dwAllowUpsFlashBreakTime{}; // milliseconds
    DWORD m_dwPoweroffAutoShutdown{};
    DWORD m_dwAutoRebootWhenNextPowerOn{};
    DWORD m_dwUsePowerSwitch{};
    DWORD m_dwUseSafeDoor{};
    DWORD m_dwKeepSupervisorCabinetOpen{};
    DWORD m_dwBuzzerOfWithoutSelectContinueAudio{};
    DWORD m_dwRearBackLightCtrl{};
    DWORD m_dwFrontBackLightCtrl{};
    CString m_strTermType;
    // The terminal type names a terminal whose card slot has a tamper sensor: "WQT-7100" or "WQT-7200".
    bool m_bTamperTermType = false;
    DWORD m_dwSkimmerNeedReboot{};
    DWORD m_dwUseSkimmer{};
    DWORD m_dwUseSafeAgent{};
    DWORD m_dwUseInnerUPS{};
    DWORD m_dwPort{}; // of the external UPS
    DWORD m_dwOutlayUPSCarrySupply{};
    DWORD m_dwUsePinSta{};
    DWORD m_dwUseKeySta{};
    DWORD m_dwUseCardSta{};
    DWORD m_dwUseProximity{};
    CString m_strCardInserted;
    CString m_strEntryPassword;
    DWORD m_dwObserverType{};
    // Sound files of the audio indicator; empty: silent.
    CString m_strKeyPress;
    CString m_strExclamation;
    CString m_strWarning;
    CString m_strError;
    CString m_strCritical;
    DWORD m_dwDimScreenMode{};
    DWORD m_dwRearUpDoorRelationCabinet{};
    DWORD m_dwDecorateDoorRelateCabinet{};
    DWORD m_dwBrmHotLineRelateSafeDoor{};
    DWORD m_dwGuidLightOffOfReset{};
    DWORD m_dwPolicyOfCabinetOpen{};
    CString m_strCabinetOpenBeepPath;
    DWORD m_dwPhoneIndex{};
    bool m_bIsUseHandsetSensor{};
    bool m_bCashModuleLight = false; // the cash module has a light of its own
    LightMap m_arLightMap;           // filled afresh by Load
    LightMap m_arCashModuleLightMap;
    DWORD m_dwProximityPresentWaitTime{}; // milliseconds
    CString m_strLightIndexes[kLights];   // as Load read them or Save writes them, light 5 first

    // The same as the registry has them: a Save counts once it is committed.
    using LightTexts = std::array<CString, kLights>;
    std::shared_ptr<LightTexts> m_pStoredLightTexts = std::make_shared<LightTexts>();

  private:
    void MapLights(CLog* pLog);
    void GetXFSIndexOfPhyLight(WORD wPhysicalLight, const CString& strIndexes);
};
