#include "wqspcfg/classes/SIURegInfo.h"

#include "wqspcfg/core/RegistryRoots.h"
#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/SIUPorts.h"
#include "wqspcfg/platform/store/RegistryValue.h"
#include "wqspcfg/platform/utility/StringUtility.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <string_view>

using namespace wqspcfg;
using C = CSIURegInfo;

namespace {

constexpr wchar_t kAvailable[] = L"WFS_SIU_AVAILABLE";
constexpr wchar_t kNotAvailable[] = L"WFS_SIU_NOT_AVAILABLE";
constexpr std::wstring_view kAutoEnableMeaning = L"ports whose events are enabled automatically: 0 no; nonzero yes";

// ---- the settings ----

constexpr Key kSensorKey = key::Below(L"CAPABILITIES\\fwSensors\\%s");
constexpr Key kDoorKey = key::Below(L"CAPABILITIES\\fwDoors\\%s");
constexpr Key kIndicatorKey = key::Below(L"CAPABILITIES\\fwIndicators\\%s");
constexpr Key kAuxiliaryKey = key::Below(L"CAPABILITIES\\fwAuxiliaries\\%s");
constexpr Key kGuidLightKey = key::Below(L"CAPABILITIES\\fwGuidLights\\%s");
constexpr Key kAutoEnable = key::Below(L"AutoEnable");
constexpr Key kControl = key::Below(L"control");
constexpr Key kAgent = key::Absolute(L"SOFTWARE\\TARNO\\Driver\\WQDrOKIUsbAgent");
constexpr Key kKeyboardMapping = key::Absolute(L"SOFTWARE\\TARNO\\Driver\\WQDrOKIUsbAgent\\KeyboardMapping\\");

constexpr wchar_t kPortThere[] = L"the port is there: 0 no; nonzero yes";
constexpr wchar_t kPortMissing[] = L"the port is not there, whatever else is set: 0 no; nonzero yes";
constexpr wchar_t kDoorMissing[] =
    L"the door is not there, whatever else is set: 0 no; nonzero yes; a door that is there "
    L"needs the value 0, for without it the value read before stands in its place";
constexpr wchar_t kState[] = L"the port can report or take this state: 0 no; nonzero yes";

// Capabilities and flags are read and written by the functions below; their rows document them.
constexpr const wchar_t* kOperatorSwitch[] = {L"OPERATORSWITCH"};
constexpr const wchar_t* kSavedSensors[] = {L"TAMPER",    L"INTTAMPER", L"SEISMIC",       L"HEAT",
                                            L"PROXIMITY", L"AMBLIGHT",  L"ENHANCEDAUDIO", L"HANDSETSENSOR"};
constexpr const wchar_t* kReadSensors[] = {L"CALL_BUTTON"};
constexpr const wchar_t* kBoltedDoors[] = {L"CABINET", L"SAFE"};
constexpr const wchar_t* kVandalShield[] = {L"VANDALSHIELD"};
constexpr const wchar_t* kSavedIndicators[] = {L"OPENCLOSE", L"FASCIALIGHT", L"AUDIO", L"HEATING"};
constexpr const wchar_t* kReadIndicators[] = {L"INDICATOR_4",  L"INDICATOR_5",  L"INDICATOR_7",  L"INDICATOR_8",
                                              L"INDICATOR_9",  L"INDICATOR_10", L"INDICATOR_11", L"INDICATOR_12",
                                              L"INDICATOR_13", L"INDICATOR_15"};
constexpr const wchar_t* kScreens[] = {L"REARSCREEN", L"FRONTSCREEN"};
constexpr const wchar_t* kVolume[] = {L"VOLUME"};
constexpr const wchar_t* kUps[] = {L"UPS"};
constexpr const wchar_t* kPlainAuxiliaries[] = {L"MONITOR", L"ALARM", L"ENHANCEDAUDIOCONTROL"};
constexpr const wchar_t* kSavedGuidLights[] = {
    L"CARDUNIT",        L"PINPAD",        L"NOTESDISPENSER", L"COINDISPENSER", L"RECEIPTPRINTER",
    L"PASSBOOKPRINTER", L"ENVDEPOSITORY", L"CHEQUEUNIT",     L"BILLACCEPTOR",  L"ENVDISPENSER",
    L"DOCUMENTPRINTER", L"COINACCEPTOR",  L"SCANNER"};
constexpr const wchar_t* kReadGuidLights[] = {L"WFS_GUIDLIGHT_13", L"WFS_GUIDLIGHT_14", L"WFS_GUIDLIGHT_15"};

// clang-format off
constexpr Setting kOperatorSwitchRows[] = {
    {kSensorKey, kAvailable,             DwordValue, 0, L"the switch can report the run position: 0 no; nonzero yes", NotLogged, Documented},
    {kSensorKey, kNotAvailable,          DwordValue, 0, kPortMissing, NotLogged, Documented, Saved},
    {kSensorKey, L"WFS_SIU_MAINTENANCE", DwordValue, 0, kState, NotLogged, Documented, Saved},
    {kSensorKey, L"WFS_SIU_RUN",         DwordValue, 0, kState, NotLogged, Documented, Saved},
    {kSensorKey, L"WFS_SIU_SUPERVISOR",  DwordValue, 0, kState, NotLogged, Documented, Saved},
};
constexpr Setting kSavedSensorRows[] = {
    {kSensorKey, kAvailable,    DwordValue, 0, kPortThere, NotLogged, Documented, Saved},
    {kSensorKey, kNotAvailable, DwordValue, 0, kPortMissing, NotLogged, Documented},
};
constexpr Setting kReadSensorRows[] = {
    {kSensorKey, kAvailable,    DwordValue, 0, kPortThere, NotLogged, Documented},
    {kSensorKey, kNotAvailable, DwordValue, 0, kPortMissing, NotLogged, Documented},
};
constexpr Setting kBoltedDoorRows[] = {
    {kDoorKey, kNotAvailable,       DwordValue, 0, kDoorMissing, NotLogged, Documented, Saved},
    {kDoorKey, L"WFS_SIU_BOLTED",   DwordValue, 0, kState, NotLogged, Documented, Saved},
    {kDoorKey, L"WFS_SIU_CLOSED",   DwordValue, 0, kState, NotLogged, Documented, Saved},
    {kDoorKey, L"WFS_SIU_LOCKED",   DwordValue, 0, kState, NotLogged, Documented, Saved},
    {kDoorKey, L"WFS_SIU_OPEN",     DwordValue, 0, kState, NotLogged, Documented, Saved},
    {kDoorKey, L"WFS_SIU_KEYBOARD", DwordValue, 0, kState, NotLogged, Documented},
    {kDoorKey, L"WFS_SIU_SERVICE",  DwordValue, 0, kState, NotLogged, Documented},
};
constexpr Setting kVandalShieldRows[] = {
    {kDoorKey, kNotAvailable,       DwordValue, 0, kDoorMissing, NotLogged, Documented, Saved},
    {kDoorKey, L"WFS_SIU_BOLTED",   DwordValue, 0, kState, NotLogged, Documented},
    {kDoorKey, L"WFS_SIU_CLOSED",   DwordValue, 0, kState, NotLogged, Documented, Saved},
    {kDoorKey, L"WFS_SIU_LOCKED",   DwordValue, 0, kState, NotLogged, Documented, Saved},
    {kDoorKey, L"WFS_SIU_OPEN",     DwordValue, 0, kState, NotLogged, Documented, Saved},
    {kDoorKey, L"WFS_SIU_KEYBOARD", DwordValue, 0, kState, NotLogged, Documented, Saved},
    {kDoorKey, L"WFS_SIU_SERVICE",  DwordValue, 0, kState, NotLogged, Documented, Saved},
};
constexpr Setting kSavedIndicatorRows[] = {
    {kIndicatorKey, kAvailable, DwordValue, 0, kPortThere, NotLogged, Documented, Saved},
};
constexpr Setting kReadIndicatorRows[] = {
    {kIndicatorKey, kAvailable, DwordValue, 0, kPortThere, NotLogged, Documented},
};
constexpr Setting kScreenRows[] = {
    {kIndicatorKey, kAvailable, DwordValue, 1, kPortThere, NotLogged, Documented},
};
constexpr Setting kVolumeRows[] = {
    {kAuxiliaryKey, kAvailable,    DwordValue, 0, L"number of volume steps: 0 the volume cannot be set", NotLogged, Documented, Saved},
    {kAuxiliaryKey, kNotAvailable, DwordValue, 0, kPortMissing, NotLogged, Documented},
};
constexpr Setting kUpsRows[] = {
    {kAuxiliaryKey, kAvailable,           DwordValue, 0, kPortThere, NotLogged, Documented},
    {kAuxiliaryKey, kNotAvailable,        DwordValue, 0, kPortMissing, NotLogged, Documented, Saved},
    {kAuxiliaryKey, L"WFS_SIU_ENGAGED",   DwordValue, 0, kState, NotLogged, Documented, Saved},
    {kAuxiliaryKey, L"WFS_SIU_LOW",       DwordValue, 0, kState, NotLogged, Documented, Saved},
    {kAuxiliaryKey, L"WFS_SIU_POWERING",  DwordValue, 0, kState, NotLogged, Documented, Saved},
    {kAuxiliaryKey, L"WFS_SIU_RECOVERED", DwordValue, 0, kState, NotLogged, Documented, Saved},
};
constexpr Setting kPlainAuxiliaryRows[] = {
    {kAuxiliaryKey, kAvailable,    DwordValue, 0, kPortThere, NotLogged, Documented, Saved},
    {kAuxiliaryKey, kNotAvailable, DwordValue, 0, kPortMissing, NotLogged, Documented},
};
constexpr Setting kSavedGuidLightRows[] = {
    {kGuidLightKey, kAvailable, DwordValue, 0, kPortThere, NotLogged, Documented, Saved},
};
constexpr Setting kReadGuidLightRows[] = {
    {kGuidLightKey, kAvailable, DwordValue, 0, kPortThere, NotLogged, Documented},
};
constexpr Setting kKeyRows[] = {
    {kKeyboardMapping, L"%d", StringValue, L"", L"what this key of the keyboard is mapped to", NotLogged, Documented, Saved},
};
constexpr Setting kSensorFlagRows[] = {
    {kAutoEnable, L"Sensor_%d", StringValue, L"", kAutoEnableMeaning.data(), NotLogged, Documented, Saved},
};
constexpr Setting kDoorFlagRows[] = {
    {kAutoEnable, L"Door_%d", StringValue, L"", kAutoEnableMeaning.data(), NotLogged, Documented, Saved},
};
constexpr Setting kIndicatorFlagRows[] = {
    {kAutoEnable, L"Indicator_%d", StringValue, L"", kAutoEnableMeaning.data(), NotLogged, Documented, Saved},
};
constexpr Setting kAuxiliaryFlagRows[] = {
    {kAutoEnable, L"Auxiliarie_%d", StringValue, L"", kAutoEnableMeaning.data(), NotLogged, Documented, Saved},
};
constexpr Setting kGuidLightFlagRows[] = {
    {kAutoEnable, L"GuidLight_%d", StringValue, L"", kAutoEnableMeaning.data(), NotLogged, Documented, Saved},
};

constexpr Setting kSettings[] = {
    {key::Capabilities, L"WFS_SIU_SENSORS", DwordValue, 0, L"the sensors are configured one by one: 0 there is none; nonzero read them", NotLogged, Documented, Saved},
    Repeat(kOperatorSwitch, kOperatorSwitchRows),
    Repeat(kSavedSensors, kSavedSensorRows),
    Repeat(kReadSensors, kReadSensorRows),
    {key::Capabilities, L"WFS_SIU_DOORS", DwordValue, 0, L"the doors are configured one by one: 0 there is none; nonzero read them", NotLogged, Documented, Saved},
    Repeat(kBoltedDoors, kBoltedDoorRows),
    Repeat(kVandalShield, kVandalShieldRows),
    {key::Capabilities, L"WFS_SIU_INDICATORS", DwordValue, 0, L"the indicators are configured one by one: 0 there is none; nonzero read them", NotLogged, Documented, Saved},
    Repeat(kSavedIndicators, kSavedIndicatorRows),
    Repeat(kReadIndicators, kReadIndicatorRows),
    Repeat(kScreens, kScreenRows),
    {key::Capabilities, L"WFS_SIU_AUXILIARIES", DwordValue, 0, L"the auxiliaries are configured one by one: 0 there is none; nonzero read them", NotLogged, Documented, Saved},
    Repeat(kVolume, kVolumeRows),
    Repeat(kUps, kUpsRows),
    Repeat(kPlainAuxiliaries, kPlainAuxiliaryRows),
    {key::Capabilities, L"WFS_SIU_GUIDLIGHTS", DwordValue, 0, L"the guidance lights are configured one by one: 0 there is none; nonzero read them", NotLogged, Documented, Saved},
    Repeat(kSavedGuidLights, kSavedGuidLightRows),
    Repeat(kReadGuidLights, kReadGuidLightRows),
    Repeat(1, 24, kKeyRows),
    {kAgent, L"CanpostKeyEvent", &C::m_dwCanpostKeyEvent, 0, L"PC key presses are simulated: 0 no; nonzero yes", Preloaded, Saved},
    Repeat(0, 31, kSensorFlagRows),
    Repeat(0, 15, kDoorFlagRows),
    Repeat(0, 15, kIndicatorFlagRows),
    Repeat(0, 15, kAuxiliaryFlagRows),
    Repeat(0, 15, kGuidLightFlagRows),
    {key::Control, L"ThinkOfDevStatusWhenEnableEvents", &C::m_dwThinkOfDevStatusWhenEnableEvents, 0, L"WFS_CMD_SIU_ENABLE_EVENTS: 0 does not look at the device status; 1 does, and with a faulty device it succeeds and reports a WFS_EXEE_SIU_PORT_ERROR event", Saved, OneOf},
    {kControl, L"HandsetSendEveWindowNames",        StringValue, L"", L"names of the windows to which a window event is sent when the shielding of the handset's 24 V supply changes, separated by commas", Format(L"[%s]"), Normalize([](C& c, CString& strNames, bool) {
        if (!strNames.IsEmpty()) {
            CString strList = strNames; // the line shows the text as it is
            strList.Remove(L' ');
            strList.Replace(L",,", L",");
            CStringUtility::SplitString(c.m_arHandsetSendEveWindowNames, strList, L',');
        }
    })},
    {kControl, L"EBphoneHangon",                    &C::m_dwEBphoneHangon,                    0x8001, L"window event identifier sent when the handset is picked up", Constructed(0)},
    {kControl, L"EBPhoneHangup",                    &C::m_dwEBPhoneHangup,                    0x8002, L"window event identifier sent when the handset is hung up", Constructed(0)},
    {kControl, L"EBPhoneError",                     &C::m_dwEBPhoneError,                     0x8002, L"window event identifier sent when the handset device fails", Constructed(0)},
    {kControl, L"SetStatusNotAvailableWhenSetFail", &C::m_dwSetStatusNotAvailableWhenSetFail, 1,      L"after a failed set of a door, indicator, auxiliary or guidance light its status: 0 is left; 1 becomes WFS_SIU_NOT_AVAILABLE", Saved, OneOf},
};
// clang-format on
constexpr const Setting* kAgentRow = FindRow(kSettings, L"CanpostKeyEvent");
constexpr const Setting* kFirstControl = FindRow(kSettings, L"ThinkOfDevStatusWhenEnableEvents");
constexpr const Setting* kLastControl = FindRow(kSettings, L"SetStatusNotAvailableWhenSetFail");

constexpr wchar_t kMappingFormat[] = L"%sWQDrOKIUsbAgent\\KeyboardMapping\\";
constexpr wchar_t kAgentFormat[] = L"%sWQDrOKIUsbAgent";
constexpr wchar_t kAutoEnableFormat[] = L"%s%s\\AutoEnable";

// ---- capabilities ----

// Reads the values of one array of ports. Every value comes into the same holder, which a missing value leaves as it
// was: what is asked of the holder may be what an earlier value left there.
class CapabilityReader
{
  public:
    CapabilityReader(const CString& strDevice, LPCWSTR lpszArray, CLog* pLog)
        : m_path(FormatString(L"%s%s\\CAPABILITIES", kDeviceRoot, strDevice)), m_lpszArray(lpszArray), m_log(pLog)
    {}

    // False when the array is not configured: its gate is missing or 0.
    bool ReadGate(LPCWSTR lpszGate, LPCWSTR lpszLegend = nullptr)
    {
        if (!IsSet(lpszGate)) {
            return false;
        }
        m_path = m_path + L'\\' + m_lpszArray + L'\\';
        m_arrayPath = m_path.size();
        if (lpszLegend != nullptr) {
            PrintHeader(lpszLegend);
        }
        PrintHeader(m_lpszArray);
        LogInfo(m_log, L"[CFG] %40s : %d", lpszGate, m_dwHolder);
        return true;
    }
    void OpenPort(LPCWSTR lpszPort)
    {
        m_lpszPort = lpszPort;
        m_path.resize(m_arrayPath);
        m_path += lpszPort;
    }
    bool IsPresent(LPCWSTR lpszValue)
    {
        ValueView view; // of most ports one value is asked
        return m_scope->QueryAt(m_path, lpszValue, view) == Outcome::Found && ToValue(view, m_dwHolder);
    }
    bool IsSet(LPCWSTR lpszValue) { return IsPresent(lpszValue) && m_dwHolder != 0; }
    DWORD Holder() const noexcept { return m_dwHolder; }

    void Print(LPCWSTR lpszValue, DWORD dwValue) const
    {
        LogInfo(m_log, L"[CFG] %40s : %d[%s[%s]]", lpszValue, dwValue, m_lpszArray, m_lpszPort);
    }
    void Print(LPCWSTR lpszValue) const { Print(lpszValue, m_dwHolder); }

  private:
    void PrintHeader(LPCWSTR lpszCaption) const
    {
        LogInfo(m_log, L"[CFG] %30s%s%s", std::wstring(31, L'*'), lpszCaption, std::wstring(33, L'*'));
    }

    ReadScope m_scope;
    std::wstring m_path;
    std::size_t m_arrayPath = 0; // how much of m_path is the array's
    LPCWSTR m_lpszArray;
    LPCWSTR m_lpszPort = L"";
    CLog* m_log;
    DWORD m_dwHolder = 0;
};

class CapabilityWriter
{
  public:
    CapabilityWriter(const CString& strDevice, LPCWSTR lpszArray) : m_strDevice(strDevice), m_lpszArray(lpszArray) {}

    void WriteGate(LPCWSTR lpszGate, bool bAny, LPCWSTR lpszFormat)
    {
        m_key = m_scope->Open(FormatString(lpszFormat, kDeviceRoot, m_strDevice));
        WriteFlag(lpszGate, bAny);
    }
    void OpenPort(LPCWSTR lpszPort)
    {
        m_key =
            m_scope->Open(FormatString(L"%s%s\\CAPABILITIES\\%s\\%s", kDeviceRoot, m_strDevice, m_lpszArray, lpszPort));
    }
    void WriteFlag(LPCWSTR lpszValue, bool bSet)
    {
        const DwordBytes bytes(bSet ? 1 : 0);
        m_scope->Set(m_key, lpszValue, bytes.View());
    }

  private:
    WriteScope m_scope;
    const CString& m_strDevice;
    LPCWSTR m_lpszArray;
    Session::Key m_key = 0;
};

constexpr wchar_t kGateFormat[] = L"%s%s\\CAPABILITIES";
constexpr wchar_t kGateFormatWithBackslash[] = L"%s%s\\CAPABILITIES\\";

struct StateBit
{
    LPCWSTR name;
    WORD bit;
};
constexpr StateBit kSwitchStates[] = {{L"WFS_SIU_MAINTENANCE", WFS_SIU_MAINTENANCE},
                                      {L"WFS_SIU_RUN", WFS_SIU_RUN},
                                      {L"WFS_SIU_SUPERVISOR", WFS_SIU_SUPERVISOR}};
constexpr StateBit kDoorStates[] = {{L"WFS_SIU_BOLTED", WFS_SIU_BOLTED},     {L"WFS_SIU_CLOSED", WFS_SIU_CLOSED},
                                    {L"WFS_SIU_LOCKED", WFS_SIU_LOCKED},     {L"WFS_SIU_OPEN", WFS_SIU_OPEN},
                                    {L"WFS_SIU_KEYBOARD", WFS_SIU_KEYBOARD}, {L"WFS_SIU_SERVICE", WFS_SIU_SERVICE}};
constexpr StateBit kUpsStates[] = {{L"WFS_SIU_ENGAGED", WFS_SIU_ENGAGED},
                                   {L"WFS_SIU_LOW", WFS_SIU_LOW},
                                   {L"WFS_SIU_POWERING", WFS_SIU_POWERING},
                                   {L"WFS_SIU_RECOVERED", WFS_SIU_RECOVERED}};
// In the order in which they are written.
constexpr StateBit kSavedSwitchStates[] = {{L"WFS_SIU_MAINTENANCE", WFS_SIU_MAINTENANCE},
                                           {L"WFS_SIU_SUPERVISOR", WFS_SIU_SUPERVISOR},
                                           {L"WFS_SIU_RUN", WFS_SIU_RUN}};
constexpr StateBit kSavedDoorStates[] = {{L"WFS_SIU_BOLTED", WFS_SIU_BOLTED},
                                         {L"WFS_SIU_CLOSED", WFS_SIU_CLOSED},
                                         {L"WFS_SIU_LOCKED", WFS_SIU_LOCKED},
                                         {L"WFS_SIU_OPEN", WFS_SIU_OPEN}};
constexpr StateBit kSavedShieldStates[] = {{L"WFS_SIU_KEYBOARD", WFS_SIU_KEYBOARD},
                                           {L"WFS_SIU_CLOSED", WFS_SIU_CLOSED},
                                           {L"WFS_SIU_LOCKED", WFS_SIU_LOCKED},
                                           {L"WFS_SIU_OPEN", WFS_SIU_OPEN},
                                           {L"WFS_SIU_SERVICE", WFS_SIU_SERVICE}};

void AddBit(WORD& fwPort, WORD bit)
{
    fwPort = static_cast<WORD>(fwPort | bit);
}

template <std::size_t N>
void WriteStates(CapabilityWriter& writer, WORD fwPort, const StateBit (&states)[N])
{
    writer.WriteFlag(kNotAvailable, (fwPort & WFS_SIU_AVAILABLE) == 0);
    for (const auto& state : states) {
        writer.WriteFlag(state.name, (fwPort & state.bit) != 0);
    }
}

void WriteAvailable(CapabilityWriter& writer, WORD fwPort)
{
    writer.WriteFlag(kAvailable, (fwPort & WFS_SIU_AVAILABLE) != 0);
}

bool AnySet(const WORD* ports, std::size_t count)
{
    return std::any_of(ports, ports + count, [](WORD port) { return port != 0; });
}

} // namespace

const Table& CSIURegInfo::Settings() noexcept
{
    static constexpr Table kTable{L"CSIURegInfo", &CRegInfo::Settings, L"SIU", kSettings};
    return kTable;
}

CSIURegInfo::CSIURegInfo(const CString& strName, bool bPhysicalName) : CRegInfo(strName, bPhysicalName)
{
    Construct(*this, kSettings);
    for (int nKey = 1; nKey <= 24; ++nKey) {
        m_mapKeyboardMapping.SetAt(FormatString(L"%d", nKey).c_str(), L"");
    }
}

bool CSIURegInfo::Load(CLog* pLog)
{
    Loading loading(*this, pLog);
    bool bResult = CRegInfo::Load(pLog);
    GetSensorsCap(&m_stSiuCaps, pLog);
    GetDoorsCap(&m_stSiuCaps, pLog);
    GetIndicatorsCap(&m_stSiuCaps, pLog);
    GetAuxiliariesCap(&m_stSiuCaps, pLog);
    GetGuidlightsCap(&m_stSiuCaps, pLog);
    if (!QueryValues(m_mapKeyboardMapping, kMappingFormat, kDriverRoot)) {
        bResult = false;
    }
    m_dwCanpostKeyEvent = 0;
    if (!QueryValue(m_dwCanpostKeyEvent, L"CanpostKeyEvent", kAgentFormat, kDriverRoot)) {
        bResult = false;
    }
    loading.Read(Settings(), std::span<const Setting>{kAgentRow, 1});
    CMapStringToString mapEnabled;
    QueryValues(mapEnabled, kAutoEnableFormat, kDeviceRoot, GetExeDllMother(1, nullptr));
    for (const auto& [strValueName, strData] : mapEnabled) {
        if (ParseDecimal(strData.View()) != 0) {
            LogInfo(pLog, L"[CFG] %40s : %s[%s]", strValueName, strData, kAutoEnableMeaning);
            SetEnableStatus(strValueName, pLog);
        }
    }
    loading.Read(Settings(), std::span<const Setting>{kFirstControl, std::end(kSettings)});
    return bResult;
}

void CSIURegInfo::GetSensorsCap(_wfs_siu_caps* pCaps, CLog* pLog)
{
    const CString strDevice = GetExeDllMother(1, nullptr);
    CapabilityReader reader(strDevice, L"fwSensors", pLog);
    if (!reader.ReadGate(L"WFS_SIU_SENSORS", L"0 = no such capability, non-0 = capability present")) {
        return;
    }
    for (std::size_t i = 0; i < std::size(siu::kSensorNames); ++i) {
        if (siu::kSensorNames[i] == nullptr) {
            continue;
        }
        reader.OpenPort(siu::kSensorNames[i]);
        WORD& fwPort = pCaps->fwSensors[i];
        if (reader.IsSet(kAvailable)) {
            fwPort = WFS_SIU_AVAILABLE;
        }
        if (reader.IsSet(kNotAvailable)) {
            fwPort = 0;
        } else if (i == WFS_SIU_OPERATORSWITCH) {
            for (const auto& state : kSwitchStates) {
                if (reader.IsSet(state.name)) {
                    AddBit(fwPort, state.bit);
                    reader.Print(state.name);
                }
            }
        } else {
            reader.Print(kAvailable);
        }
    }
}

void CSIURegInfo::GetDoorsCap(_wfs_siu_caps* pCaps, CLog* pLog)
{
    const CString strDevice = GetExeDllMother(1, nullptr);
    CapabilityReader reader(strDevice, L"fwDoors", pLog);
    if (!reader.ReadGate(L"WFS_SIU_DOORS")) {
        return;
    }
    for (std::size_t i = 0; siu::kDoorNames[i] != nullptr; ++i) {
        reader.OpenPort(siu::kDoorNames[i]);
        WORD& fwPort = pCaps->fwDoors[i];
        if (reader.IsSet(kNotAvailable)) {
            fwPort = 0;
            continue;
        }
        // Where the value is missing, the one that was read last decides: the gate, for the first door. Installed
        // terminals rely on it.
        if (reader.Holder() != 0) {
            continue;
        }
        for (const auto& state : kDoorStates) {
            if (reader.IsPresent(state.name)) {
                if (reader.Holder() != 0) {
                    AddBit(fwPort, state.bit);
                }
                reader.Print(state.name);
            }
        }
    }
}

void CSIURegInfo::GetIndicatorsCap(_wfs_siu_caps* pCaps, CLog* pLog)
{
    const CString strDevice = GetExeDllMother(1, nullptr);
    CapabilityReader reader(strDevice, L"fwIndicators", pLog);
    if (!reader.ReadGate(L"WFS_SIU_INDICATORS")) {
        return;
    }
    for (std::size_t i = 0; i < std::size(siu::kIndicatorNames); ++i) {
        reader.OpenPort(siu::kIndicatorNames[i]);
        WORD& fwPort = pCaps->fwIndicators[i];
        const bool bPresent = reader.IsPresent(kAvailable);
        if (i == siu::kRearScreen || i == siu::kFrontScreen) {
            fwPort = bPresent && reader.Holder() == 0 ? WFS_SIU_NOT_AVAILABLE : WFS_SIU_AVAILABLE;
        } else if (bPresent && reader.Holder() != 0) {
            fwPort = WFS_SIU_AVAILABLE;
        }
        if (!std::wstring_view(siu::kIndicatorNames[i]).starts_with(L"INDICATOR_")) {
            reader.Print(kAvailable, fwPort == WFS_SIU_AVAILABLE ? 1 : 0);
        }
    }
}

void CSIURegInfo::GetAuxiliariesCap(_wfs_siu_caps* pCaps, CLog* pLog)
{
    const CString strDevice = GetExeDllMother(1, nullptr);
    CapabilityReader reader(strDevice, L"fwAuxiliaries", pLog);
    if (!reader.ReadGate(L"WFS_SIU_AUXILIARIES")) {
        return;
    }
    for (std::size_t i = 0; siu::kAuxiliaryNames[i] != nullptr; ++i) {
        reader.OpenPort(siu::kAuxiliaryNames[i]);
        WORD& fwPort = pCaps->fwAuxiliaries[i];
        if (reader.IsPresent(kAvailable)) {
            if (reader.Holder() != 0) {
                fwPort = i == WFS_SIU_VOLUME ? LOWORD(reader.Holder()) : WFS_SIU_AVAILABLE;
            }
            reader.Print(kAvailable);
        }
        if (reader.IsSet(kNotAvailable)) {
            fwPort = 0;
        } else if (i == WFS_SIU_UPS) {
            for (const auto& state : kUpsStates) {
                if (reader.IsSet(state.name)) {
                    AddBit(fwPort, state.bit);
                    reader.Print(state.name);
                }
            }
        }
    }
}

void CSIURegInfo::GetGuidlightsCap(_wfs_siu_caps* pCaps, CLog* pLog)
{
    const CString strDevice = GetExeDllMother(1, nullptr);
    CapabilityReader reader(strDevice, L"fwGuidLights", pLog);
    if (!reader.ReadGate(L"WFS_SIU_GUIDLIGHTS")) {
        return;
    }
    for (std::size_t i = 0; siu::kGuidLightNames[i] != nullptr; ++i) {
        reader.OpenPort(siu::kGuidLightNames[i]);
        if (reader.IsSet(kAvailable)) {
            pCaps->fwGuidLights[i] = WFS_SIU_AVAILABLE;
        }
        reader.Print(kAvailable);
    }
}

void CSIURegInfo::SetEnableStatus(const CString& strValueName, CLog*)
{
    const std::wstring_view name = strValueName.View();
    const auto separator = name.rfind(L'_');
    if (separator == std::wstring_view::npos || separator == 0 || separator + 1 == name.size()) {
        return;
    }
    const auto kind = name.substr(0, separator);
    const auto digits = name.substr(separator + 1);
    const LONG index = ParseDecimal(digits);
    if (index < 0 || (index == 0 && digits.front() != L'0')) {
        return;
    }
    const auto set = [&](std::wstring_view flagKind, auto& flags) {
        if (kind == flagKind && static_cast<std::size_t>(index) < std::size(flags)) {
            flags[index] = 1;
        }
    };
    set(L"Sensor", m_bySensorAutoEnable);
    set(L"Door", m_byDoorAutoEnable);
    set(L"Indicator", m_byIndicatorAutoEnable);
    set(L"Auxiliarie", m_byAuxiliaryAutoEnable);
    set(L"GuidLight", m_byGuidLightAutoEnable);
}

void CSIURegInfo::Save()
{
    Saving saving(*this);
    CRegInfo::Save();
    SetSensorsCap(&m_stSiuCaps);
    SetDoorsCap(&m_stSiuCaps);
    SetIndicatorsCap(&m_stSiuCaps);
    SetAuxiliariesCap(&m_stSiuCaps);
    SetGuidlightsCap(&m_stSiuCaps);
    SetValues(m_mapKeyboardMapping, kMappingFormat, kDriverRoot);
    saving.Write({kAgentRow, 1});
    saving.Write({kFirstControl, 1});
    SaveEnableStatus();
    saving.Write({kLastControl, 1});
}

void CSIURegInfo::SetSensorsCap(_wfs_siu_caps* pCaps)
{
    const CString strDevice = GetExeDllMother(1, nullptr);
    CapabilityWriter writer(strDevice, L"fwSensors");
    const auto& ports = pCaps->fwSensors;
    writer.WriteGate(L"WFS_SIU_SENSORS", AnySet(ports, 8) || ports[WFS_SIU_HANDSETSENSOR] != 0, kGateFormat);
    writer.OpenPort(siu::kSensorNames[WFS_SIU_OPERATORSWITCH]);
    WriteStates(writer, ports[WFS_SIU_OPERATORSWITCH], kSavedSwitchStates);
    for (const std::size_t i : {1U, 2U, 3U, 4U, 5U, 6U, 7U, 11U}) {
        writer.OpenPort(siu::kSensorNames[i]);
        WriteAvailable(writer, ports[i]);
    }
}

void CSIURegInfo::SetDoorsCap(_wfs_siu_caps* pCaps)
{
    const CString strDevice = GetExeDllMother(1, nullptr);
    CapabilityWriter writer(strDevice, L"fwDoors");
    const auto& ports = pCaps->fwDoors;
    writer.WriteGate(L"WFS_SIU_DOORS", AnySet(ports, 3), kGateFormatWithBackslash);
    for (const std::size_t i : {WFS_SIU_CABINET, WFS_SIU_SAFE}) {
        writer.OpenPort(siu::kDoorNames[i]);
        WriteStates(writer, ports[i], kSavedDoorStates);
    }
    writer.OpenPort(siu::kDoorNames[WFS_SIU_VANDALSHIELD]);
    WriteStates(writer, ports[WFS_SIU_VANDALSHIELD], kSavedShieldStates);
}

void CSIURegInfo::SetIndicatorsCap(_wfs_siu_caps* pCaps)
{
    const CString strDevice = GetExeDllMother(1, nullptr);
    CapabilityWriter writer(strDevice, L"fwIndicators");
    const auto& ports = pCaps->fwIndicators;
    writer.WriteGate(L"WFS_SIU_INDICATORS", AnySet(ports, 4), kGateFormatWithBackslash);
    for (std::size_t i = 0; i < 4; ++i) {
        writer.OpenPort(siu::kIndicatorNames[i]);
        WriteAvailable(writer, ports[i]);
    }
}

void CSIURegInfo::SetAuxiliariesCap(_wfs_siu_caps* pCaps)
{
    const CString strDevice = GetExeDllMother(1, nullptr);
    CapabilityWriter writer(strDevice, L"fwAuxiliaries");
    const auto& ports = pCaps->fwAuxiliaries;
    writer.WriteGate(L"WFS_SIU_AUXILIARIES", AnySet(ports, 5), kGateFormatWithBackslash);
    for (std::size_t i = 0; i < 5; ++i) {
        writer.OpenPort(siu::kAuxiliaryNames[i]);
        if (i == WFS_SIU_UPS) {
            WriteStates(writer, ports[i], kUpsStates);
        } else {
            WriteAvailable(writer, ports[i]);
        }
    }
}

void CSIURegInfo::SetGuidlightsCap(_wfs_siu_caps* pCaps)
{
    const CString strDevice = GetExeDllMother(1, nullptr);
    CapabilityWriter writer(strDevice, L"fwGuidLights");
    const auto& ports = pCaps->fwGuidLights;
    writer.WriteGate(L"WFS_SIU_GUIDLIGHTS", AnySet(ports, 13), kGateFormatWithBackslash);
    for (std::size_t i = 0; i < 13; ++i) {
        writer.OpenPort(siu::kGuidLightNames[i]);
        WriteAvailable(writer, ports[i]);
    }
}

void CSIURegInfo::SaveEnableStatus()
{
    const CString strDevice = GetExeDllMother(1, nullptr);
    const auto save = [&](LPCWSTR lpszFormat, const auto& flags) {
        for (unsigned i = 0; i < std::size(flags); ++i) {
            if (flags[i] != 0) {
                SetValue(L"1", FormatString(lpszFormat, i), kAutoEnableFormat, kDeviceRoot, strDevice);
            }
        }
    };
    save(L"Sensor_%d", m_bySensorAutoEnable);
    save(L"Door_%d", m_byDoorAutoEnable);
    save(L"Indicator_%d", m_byIndicatorAutoEnable);
    save(L"Auxiliarie_%d", m_byAuxiliaryAutoEnable);
    save(L"GuidLight_%d", m_byGuidLightAutoEnable);
}

WQSPCFG_CATALOGUE_ENTRY(CSIURegInfo)
