#include "wqspcfg/models/siu/SpSIUPrdSIUNormalRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/SIU.h"

using namespace wqspcfg;
using C = CSpSIUPrdSIUNormalRegInfo;

namespace {

constexpr Key kParameterCheck = key::Below(L"ParameterCheck\\");
constexpr Key kSensors = key::Below(L"Sensors\\");
constexpr Key kGuidLights = key::Below(L"GuidLights\\");
constexpr Key kAuxiliaries = key::Below(L"Auxiliaries\\");
constexpr Key kIndicators = key::Below(L"Indicators\\");
constexpr Key kShareCtrl = key::Below(L"ShareCtrl\\");
constexpr Key kPortRelate = key::Below(L"PortRelate\\");

// clang-format off
constexpr Setting kSettings[] = {
    {key::Device, L"DN.SIU_NORMAL", &C::m_strDN_SIU_NORMAL, L"WQDrSIUTEK0816",
     L"name of the board's driver", Saved},
    {kParameterCheck, L"ContinueBuzzerOfWithoutSelectAudio", &C::m_dwContinueBuzzerOfWithoutSelectAudio, 0,
     meaning::kContinueBuzzerWithoutAudio, Saved, QualifiedLabel},
    {kSensors, L"UsePowerSwitch", &C::m_dwUsePowerSwitch, 0,
     meaning::kUsePowerSwitch, Saved, OneOf, QualifiedLabel},
    {kSensors, L"UseSafeDoor", &C::m_dwUseSafeDoor, 0,
     meaning::kUseSafeDoor, Saved, OneOf, QualifiedLabel},
    {kSensors, L"KeepSupervisorCabinetOpen", &C::m_dwKeepSupervisorCabinetOpen, 1,
     meaning::kKeepSupervisorCabinetOpen, Saved, QualifiedLabel},
    {kSensors, L"ProximityPresentWaitTime", &C::m_dwProximityPresentWaitTime, 0,
     meaning::kProximityPresentWaitTime, Saved, QualifiedLabel},
    {kSensors, L"SetScreenSTByProximityST", &C::m_bSetScreenSTByProximityST, 0,
     meaning::kSetScreenSTByProximityST, Saved, QualifiedLabel},
    {kSensors, L"ScreenPowerOffCoolDownTime", &C::m_dwScreenPowerOffCoolDownTime, 15,
     meaning::kScreenPowerOffCoolDownTime, Saved, QualifiedLabel},
    {kSensors, L"IsDoorStChangeSwitchSt", &C::m_bIsDoorStChangeSwitchSt, 0,
     meaning::kIsDoorStChangeSwitchSt, Saved, QualifiedLabel},
    {kGuidLights, L"GuidLightOffOfReset", &C::m_dwGuidLightOffOfReset, 0,
     meaning::kGuidLightOffOfReset, Saved, QualifiedLabel},
    {kGuidLights, L"SetCameraGuidLightOn", &C::m_bSetCameraGuidLightOn, 0,
     meaning::kSetCameraGuidLightOn, Saved, QualifiedLabel},
    {kAuxiliaries, L"UseAuraLight", &C::m_bUseAuraLight, 0,
     meaning::kUseAuraLight, Saved, QualifiedLabel},
    {kAuxiliaries, L"PoweroffAutoShutdown", &C::m_dwPoweroffAutoShutdown, 0,
     meaning::kPoweroffAutoShutdown, Saved, QualifiedLabel},
    {kIndicators, L"RearBackLightCtrl", &C::m_dwRearBackLightCtrl, 0,
     meaning::kRearBackLightCtrl, Saved, QualifiedLabel},
    {kIndicators, L"FrontBackLightCtrl", &C::m_dwFrontBackLightCtrl, 1,
     meaning::kFrontBackLightCtrl, Saved, QualifiedLabel},
    {kIndicators, L"CabinetOpenBeepPath",
     &C::m_strCabinetOpenBeepPath, L"C:\\vexo\\sp\\Config\\sp.data\\DeviceErrSound.wav",
     meaning::kCabinetOpenBeepPath, Saved, QualifiedLabel, RefersTo(Reference::File)},
    {kShareCtrl, L"AllowUpsFlashBreakTime", &C::m_dwAllowUpsFlashBreakTime, 1000,
     meaning::kAllowUpsFlashBreakTime, Saved, QualifiedLabel},
    {kShareCtrl, L"UsePinSta", &C::m_dwUsePinSta, 1,
     meaning::kUsePinSta, Saved, QualifiedLabel},
    {kShareCtrl, L"UseKeySta", &C::m_dwUseKeySta, 1,
     meaning::kUseKeySta, Saved, QualifiedLabel},
    {kShareCtrl, L"UseCardSta", &C::m_dwUseCardSta, 1,
     meaning::kUseCardSta, Saved, QualifiedLabel},
    {kShareCtrl, L"UseProximity", &C::m_dwUseProximitySta, 1,
     meaning::kUseProximity, Saved, QualifiedLabel},
    {kShareCtrl, L"CardReader", &C::m_strCardReader, L"WQSpIDCPrdCardReader",
     L"service of the current card reader", Saved, QualifiedLabel},
    {kShareCtrl, L"Encryptor", &C::m_strEncryptor, L"WQSpPINPrdPINEPP",
     L"service of the current PIN pad", Saved, QualifiedLabel},
    {kShareCtrl, L"PolicyOfCabinetOpen", &C::m_dwPolicyOfCabinetOpen, 4,
     meaning::kPolicyOfCabinetOpen, Saved, QualifiedLabel},
    {kShareCtrl, L"ManualResetSkimmerStatus", &C::m_bManualResetSkimmerStatus, 0,
     meaning::kManualResetSkimmerStatus, Saved, QualifiedLabel},
    {kPortRelate, L"Multiple2One", &C::m_strMultiple2One, L"",
     L"ports of the board that together stand for one XFS port: empty none", Saved, QualifiedLabel},
    {kPortRelate, L"One2Multiple", &C::m_strOne2Multiple, L"",
     L"ports of the board that each stand for several XFS ports: empty none", Saved, QualifiedLabel},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpSIUPrdSIUNormalRegInfo, CSIURegInfo, kSettings)
