#include "wqspcfg/models/siu/SpSIUCABCRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/SIU.h"
#include "wqspcfg/platform/utility/StringUtility.h"

#include <vector>

using namespace wqspcfg;
using C = CSpSIUCABCRegInfo;

namespace {

constexpr WORD kDispenserLight = 0; // the notes dispenser's, where the cash module has no light of its own
constexpr WORD kFirstLight = 5;     // the cash module's, where that has one
constexpr WORD kLastLight = kFirstLight + C::kLights - 1;

bool Contains(const CString& strText, LPCWSTR lpszPart)
{
    return strText.Find(lpszPart) >= 0;
}

bool HasCashModuleLight(const CString& strExecutable)
{
    if (Contains(strExecutable, L"WQC81Driver") || Contains(strExecutable, L"WQCCAD")) {
        return false;
    }
    CString strUpper = strExecutable;
    return Contains(strUpper.MakeUpper(), L"WQSPCRMWQ07");
}

constexpr Key kControl = key::Below(L"control\\");
constexpr Key kComm = key::Below(L"comm");
constexpr Key kSetup = key::Common(L"Setup\\");
constexpr Key kShareInfoSrc = key::Below(L"ShareInfoSrc\\");
constexpr Key kCashModule = key::Absolute(L"SOFTWARE\\XFS\\SERVICE_PROVIDERS\\TARNO_RECYCLE\\");

// The guidance lights that a text names.
std::vector<WORD> IndexesIn(const CString& strIndexes)
{
    CStringArray arIndexes;
    CStringUtility::SplitString(arIndexes, strIndexes, L',');
    std::vector<WORD> indexes;
    for (const auto& strIndex : arIndexes) {
        indexes.push_back(LOWORD(ParseDecimal(strIndex.View())));
    }
    return indexes;
}

constexpr auto kFindTamperType = Normalize([](C& c, CString& strType, bool) {
    c.m_bTamperTermType = Contains(strType, L"WQT-7100") || Contains(strType, L"WQT-7200");
});
constexpr auto kFindCashModuleLight = Normalize([](C& c, CString& strExecutable, bool bFound) {
    c.m_bCashModuleLight = bFound && HasCashModuleLight(strExecutable);
});

// The rows of the lights from `First` on: their texts, and whether Save has a new text to write.
template <WORD First>
constexpr auto kTextOfLight = [](C& c, unsigned n) -> CString& { return c.m_strLightIndexes[First - kFirstLight + n]; };
template <WORD First>
constexpr auto kIfMappedAnew = SavedIf([](C& c, unsigned n) {
    const auto light = First + n;
    std::vector<WORD> indexes;
    CString strIndexes;
    for (const auto& mapping : c.m_arLightMap) {
        if (mapping.wPhyLight == light) {
            indexes.push_back(mapping.wXFSIndex);
            strIndexes.AppendFormat(strIndexes.IsEmpty() ? L"%d" : L",%d", +mapping.wXFSIndex);
        }
    }
    CString& strStored = (*c.m_pStoredLightTexts)[First - kFirstLight + n];
    if ((c.m_bCashModuleLight && light == kFirstLight) || indexes == IndexesIn(strStored)) {
        return false;
    }
    kTextOfLight<First>(c, n) = strIndexes;
    const WriteScope scope;
    scope->AtEnd([texts = c.m_pStoredLightTexts, &strStored, strIndexes](bool committed) {
        if (committed) {
            strStored = strIndexes;
        }
    });
    return true;
});

// clang-format off
template <WORD First>
constexpr Setting kLightRows[] = {
    {key::Control, L"XFSIndesOfLight_%d", kTextOfLight<First>, L"",
     L"indices of the guidance lights that this light of the board stands for, separated by commas: empty the light is "
     L"not used", NotLogged, Saved, kIfMappedAnew<First>},
};
constexpr Setting kFirstLightRows[] = {
    Repeat(kFirstLight, kFirstLight, Rows<kLightRows<kFirstLight>>),
};

constexpr Setting kBoard[] = {
    {kControl, L"SetTamperStOfDependTermType", &C::m_dwSetTamperStOfDependTermType, 0,
     L"the tamper state of the card slot is set by the terminal type: 0 no; nonzero yes", Saved},
    {kControl, L"RecoverUpsStOfFlashBreak", &C::m_dwRecoverUpsStOfFlashBreak, 1,
     L"after a short break of the internal UPS it returns to the not-supplying state: 0 no; nonzero yes", Saved},
    {kControl, L"ConvertOnOffToFlush", &C::m_dwConvertOnOffToFlush, 0,
     L"a light flashes by being switched on and off: 0 no; nonzero yes", Saved},
    {kControl, L"AllowUpsFlashBreakTime", &C::m_dwAllowUpsFlashBreakTime, 1000,
     meaning::kAllowUpsFlashBreakTime, Saved},
    {kControl, L"PoweroffAutoShutdown", &C::m_dwPoweroffAutoShutdown, 0,
     meaning::kPoweroffAutoShutdown, Saved},
    {kControl, L"AutoRebootWhenNextPowerOn", &C::m_dwAutoRebootWhenNextPowerOn, 1,
     L"the terminal restarts when power returns after such a shutdown: 0 no; nonzero yes", Saved},
    {kControl, L"UsePowerSwitch", &C::m_dwUsePowerSwitch, 0,
     meaning::kUsePowerSwitch, Saved, OneOf},
    {kControl, L"UseSafeDoor", &C::m_dwUseSafeDoor, 0,
     meaning::kUseSafeDoor, Saved, OneOf},
    {kControl, L"KeepSupervisorCabinetOpen", &C::m_dwKeepSupervisorCabinetOpen, 1,
     meaning::kKeepSupervisorCabinetOpen, Saved},
    {kControl, L"BuzzerOfWithoutSelectContinueAudio", &C::m_dwBuzzerOfWithoutSelectContinueAudio, 0,
     meaning::kContinueBuzzerWithoutAudio, Saved},
    {kControl, L"RearBackLightCtrl", &C::m_dwRearBackLightCtrl, 0,
     meaning::kRearBackLightCtrl, Saved},
    {kControl, L"FrontBackLightCtrl", &C::m_dwFrontBackLightCtrl, 1,
     meaning::kFrontBackLightCtrl, Saved},
    {kSetup, L"TermType", &C::m_strTermType, L"",
     L"terminal type: WQT-7100 and WQT-7200 have a tamper sensor at the card slot", kFindTamperType},
    {kControl, L"SkimmerNeedReboot", &C::m_dwSkimmerNeedReboot, 0,
     L"a skimmer fault at the card slot: 0 recover without a restart; 1 restart and recover; 2 restart without "
     L"recovering", Saved, OneOf},
    {kControl, L"UseSkimmer", &C::m_dwUseSkimmer, 1,
     L"the skimmer sensor at the card slot is used: 0 no; nonzero yes", Saved},
    {kControl, L"UseSafeAgent", &C::m_dwUseSafeAgent, 0,
     meaning::kUseSafeAgent, Saved},
    {kControl, L"UseInnerUPS", &C::m_dwUseInnerUPS, 0,
     L"the internal UPS is used: 0 no; nonzero yes", Saved},
    {kComm, L"Port", &C::m_dwPort, 3,
     L"serial port number of the external UPS", Saved, RefersTo(Reference::SerialPort)},
    {kComm, L"OutlayUPSCarrySupply", &C::m_dwOutlayUPSCarrySupply, 0,
     L"the external UPS keeps supplying power on mains failure: 0 no; nonzero yes", Saved},
    {kControl, L"UsePinSta", &C::m_dwUsePinSta, 1,
     meaning::kUsePinSta, Saved},
    {kControl, L"UseKeySta", &C::m_dwUseKeySta, 1,
     meaning::kUseKeySta, Saved},
    {kControl, L"UseCardSta", &C::m_dwUseCardSta, 1,
     meaning::kUseCardSta, Saved},
    {kControl, L"UseProximity", &C::m_dwUseProximity, 1,
     meaning::kUseProximity, Saved},
    {kShareInfoSrc, L"CardInserted", &C::m_strCardInserted, L"WQCARDREADER_E",
     L"type of the current card reader", Saved},
    {kShareInfoSrc, L"EntryPassword", &C::m_strEntryPassword, L"WQPINPADEXE",
     L"type of the current PIN pad", Saved},
    Group(Rows<kSafeAgentRows<C>>),
    {kSafeAgent, L"ObserverType", &C::m_dwObserverType, 2,
     L"what is observed: 1 the current state; 2 the warning state", Saved, OneOf},
    {key::Beep, L"KeyPress", &C::m_strKeyPress, L"C:\\vexo\\sp\\Config\\sp.data\\KeyDownSound.wav",
     L"sound file of a key press", Saved, RefersTo(Reference::File)},
    {key::Beep, L"Exclamation", &C::m_strExclamation, L"",
     L"sound file of an exclamation", Saved, RefersTo(Reference::File)},
    {key::Beep, L"Warning", &C::m_strWarning, L"",
     L"sound file of a warning", Saved, RefersTo(Reference::File)},
    {key::Beep, L"Error", &C::m_strError, L"C:\\vexo\\sp\\Config\\sp.data\\DeviceErrSound.wav",
     L"sound file of an error", Saved, RefersTo(Reference::File)},
    {key::Beep, L"Critical", &C::m_strCritical, L"",
     L"sound file of a critical error", Saved, RefersTo(Reference::File)},
    {kControl, L"DimScreenMode", &C::m_dwDimScreenMode, 0,
     L"dimming of the screen by the light sensor: 0 off; 1 simple; 2 incremental", Saved, OneOf},
    {kControl, L"RearUpDoorRelationCabinet", &C::m_dwRearUpDoorRelationCabinet, 0,
     meaning::kRearUpDoorRelationCabinet, Saved},
    {kControl, L"DecorateDoorRelateCabinet", &C::m_dwDecorateDoorRelateCabinet, 0,
     meaning::kDecorateDoorRelateCabinet, Saved},
    {kControl, L"BrmHotLineRelateSafeDoor", &C::m_dwBrmHotLineRelateSafeDoor, 0,
     L"the state of the safe door is linked to its handle: 0 no; nonzero yes", Saved},
    {kControl, L"GuidLightOffOfReset", &C::m_dwGuidLightOffOfReset, 0,
     meaning::kGuidLightOffOfReset, Saved},
    {key::Control, L"PolicyOfCabinetOpen", &C::m_dwPolicyOfCabinetOpen, 4,
     meaning::kPolicyOfCabinetOpen, Saved},
    {key::Control, L"CabinetOpenBeepPath",
     &C::m_strCabinetOpenBeepPath, L"C:\\vexo\\sp\\Config\\sp.data\\DeviceErrSound.wav",
     meaning::kCabinetOpenBeepPath, Saved, RefersTo(Reference::File)},
    {key::Control, L"PhoneIndex", &C::m_dwPhoneIndex, 10,
     L"number of the handset sensor", Saved},
    {key::Control, L"IsUseHandsetSensor", &C::m_bIsUseHandsetSensor, 0,
     L"the handset sensor masks the 24 V supply: 0 no; 1 yes", Saved, OneOf},
    {kCashModule, L"Executable", StringValue, L"WQC81Driver.exe",
     L"executable of the cash module's driver, which tells whether the cash module has a light of its own",
     Label(L"TARNO_RECYCLE\\Executable"), kFindCashModuleLight},
    When([](const C& c) { return !c.m_bCashModuleLight; }, Rows<kFirstLightRows>),
    Repeat(kFirstLight + 1, kLastLight, Rows<kLightRows<kFirstLight + 1>>),
};
constexpr Setting kProximity[] = {
    {key::Control, L"ProximityPresentWaitTime", &C::m_dwProximityPresentWaitTime, 0,
     meaning::kProximityPresentWaitTime, Saved},
};
// clang-format on

} // namespace

const Table& CSpSIUCABCRegInfo::Settings() noexcept
{
    static constexpr Setting kSettings[] = {
        Group(Rows<kBoard>),
        Step([](C& c, Loading& loading) { c.MapLights(loading.Log()); }),
        Group(Rows<kProximity>),
    };
    static const Table table{L"CSpSIUCABCRegInfo", &CSIURegInfo::Settings, nullptr, Rows<kSettings>};
    return table;
}

void CSpSIUCABCRegInfo::MapLights(CLog* pLog)
{
    m_pStoredLightTexts = std::make_shared<LightTexts>();
    std::copy(std::begin(m_strLightIndexes), std::end(m_strLightIndexes), m_pStoredLightTexts->begin());
    m_arLightMap.RemoveAll();
    m_arCashModuleLightMap.RemoveAll();
    if (!m_bCashModuleLight) {
        m_arLightMap.Add({kDispenserLight, WFS_SIU_NOTESDISPENSER});
    }
    for (WORD light = kFirstLight; light <= kLastLight; ++light) {
        CString strIndexes = m_strLightIndexes[light - kFirstLight];
        if (light == kFirstLight && m_bCashModuleLight) {
            m_arCashModuleLightMap.Add({light, WFS_SIU_NOTESDISPENSER});
            strIndexes.Format(L"%d", static_cast<int>(WFS_SIU_NOTESDISPENSER));
        } else {
            GetXFSIndexOfPhyLight(light, strIndexes);
        }
        if (!strIndexes.IsEmpty()) {
            LogInfo(pLog, L"[CFG] %40s : %s[%s]", FormatString(L"XFSIndesOfLight_%d", +light), strIndexes,
                    kLightRows<kFirstLight>[0].meaning);
        }
    }
}

void CSpSIUCABCRegInfo::GetXFSIndexOfPhyLight(WORD wPhysicalLight, const CString& strIndexes)
{
    for (const WORD wIndex : IndexesIn(strIndexes)) {
        m_arLightMap.Add({wPhysicalLight, wIndex});
    }
}

WQSPCFG_SETTINGS_MEMBERS(CSpSIUCABCRegInfo, CSIURegInfo)
