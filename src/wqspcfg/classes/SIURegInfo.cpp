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

// ---- the settings ----

constexpr Key kControl = key::Below(L"control");
constexpr Key kAutoEnable = key::Below(L"AutoEnable");
constexpr Key kAgent = key::Absolute(L"SOFTWARE\\TARNO\\Driver\\WQDrOKIUsbAgent");
constexpr Key kKeyboardMapping = key::Absolute(L"SOFTWARE\\TARNO\\Driver\\WQDrOKIUsbAgent\\KeyboardMapping\\");

constexpr unsigned kAgentKeys = 24; // that the agent's mapping has at least

// The line shows the text as it is.
constexpr auto kSplitWindowNames = Normalize([](C& c, CString& strNames, bool) {
    if (!strNames.IsEmpty()) {
        CString strList = strNames;
        strList.Remove(L' ');
        strList.Replace(L",,", L",");
        CStringUtility::SplitString(c.m_arHandsetSendEveWindowNames, strList, L',');
    }
});

// A state is in effect where its bit is set in the word of the port, whatever its own value says.
DWORD HeldNumberOf(const siu::PortArray& array, const WORD* words, const NumberRead& read)
{
    const auto portName = read.key.substr(read.key.rfind(L'\\') + 1);
    const auto port = std::find_if(array.ports.begin(), array.ports.end(),
                                   [&](const siu::Port& each) { return each.name == portName; });
    const WORD word = words[port->index];
    if (read.name == siu::kNotAvailable) {
        // A door whose states are not read, as the value is missing, is as one that is not there.
        return !read.found && array.needsNotAvailable && word == 0 ? 1 : read.number;
    }
    const auto& states = port->form.states;
    const auto state =
        std::find_if(states.begin(), states.end(), [&](const siu::State& each) { return each.name == read.name; });
    if (state->isCount) {
        return word;
    }
    const bool isSet = (word & state->bit) != 0;
    return isSet == (read.number != 0) ? read.number : isSet ? 1 : 0;
}
template <const siu::PortArray& Array, auto Words>
constexpr Setting kPorts = Group(Rows<siu::kPortRows<Array>>, HeldAs([](C& c, const NumberRead& read) -> DWORD {
                                     return HeldNumberOf(Array, c.m_stSiuCaps.*Words, read);
                                 }));

// clang-format off
constexpr Setting kCapabilities[] = {
    {key::Capabilities, L"WFS_SIU_SENSORS", DwordValue, 0,
     L"the sensors are configured one by one: 0 there is none; nonzero read them", NotLogged, Documented, Saved},
    kPorts<siu::kSensors, &_wfs_siu_caps::fwSensors>,
    {key::Capabilities, L"WFS_SIU_DOORS", DwordValue, 0,
     L"the doors are configured one by one: 0 there is none; nonzero read them", NotLogged, Documented, Saved},
    kPorts<siu::kDoors, &_wfs_siu_caps::fwDoors>,
    {key::Capabilities, L"WFS_SIU_INDICATORS", DwordValue, 0,
     L"the indicators are configured one by one: 0 there is none; nonzero read them", NotLogged, Documented, Saved},
    kPorts<siu::kIndicators, &_wfs_siu_caps::fwIndicators>,
    {key::Capabilities, L"WFS_SIU_AUXILIARIES", DwordValue, 0,
     L"the auxiliaries are configured one by one: 0 there is none; nonzero read them", NotLogged, Documented, Saved},
    kPorts<siu::kAuxiliaries, &_wfs_siu_caps::fwAuxiliaries>,
    {key::Capabilities, L"WFS_SIU_GUIDLIGHTS", DwordValue, 0,
    L"the guidance lights are configured one by one: 0 there is none; nonzero read them", NotLogged, Documented, Saved},
    kPorts<siu::kGuidLights, &_wfs_siu_caps::fwGuidLights>,
};
constexpr Setting kEvents[] = {
    {kKeyboardMapping, L"%s", Map<&C::m_mapKeyboardMapping>, L"",
    L"what this key of the keyboard is mapped to, by the number of the key", NotLogged, KeepWhenMissing, Needed, Saved},
    {kAgent, L"CanpostKeyEvent", &C::m_dwCanpostKeyEvent, 0,
     L"PC key presses are simulated: 0 no; nonzero yes", Needed, Saved},
    {kAutoEnable, L"%s", Map<&C::m_mapAutoEnable>, L"",
     L"the events of this port are enabled automatically, of Sensor_0 to Sensor_31, Door_0, Indicator_0, Auxiliarie_0 "
     L"and GuidLight_0 to 15: 0 no; nonzero yes", NotLogged, Saved},
};
constexpr Setting kControls[] = {
    {key::Control, L"ThinkOfDevStatusWhenEnableEvents", &C::m_dwThinkOfDevStatusWhenEnableEvents, 0,
    L"WFS_CMD_SIU_ENABLE_EVENTS: 0 does not look at the device status; 1 does, and with a faulty device it succeeds "
     L"and reports a WFS_EXEE_SIU_PORT_ERROR event", Saved, OneOf},
    {kControl, L"HandsetSendEveWindowNames", StringValue, L"",
     L"names of the windows to which a window event is sent when the shielding of the handset's 24 V supply changes, "
     L"separated by commas", Format(L"[%s]"), kSplitWindowNames},
    {kControl, L"EBphoneHangon", &C::m_dwEBphoneHangon, 0x8001,
     L"window event identifier sent when the handset is picked up", Constructed(0)},
    {kControl, L"EBPhoneHangup", &C::m_dwEBPhoneHangup, 0x8002,
     L"window event identifier sent when the handset is hung up", Constructed(0)},
    {kControl, L"EBPhoneError", &C::m_dwEBPhoneError, 0x8002,
     L"window event identifier sent when the handset device fails", Constructed(0)},
    {kControl, L"SetStatusNotAvailableWhenSetFail", &C::m_dwSetStatusNotAvailableWhenSetFail, 1,
     L"after a failed set of a door, indicator, auxiliary or guidance light its status: 0 is left; 1 becomes "
     L"WFS_SIU_NOT_AVAILABLE", Saved, OneOf},
};
// clang-format on

// ---- capabilities ----

// Reads the values of one array of ports. All values share one variable. A missing value leaves it unchanged, so it may
// still hold the previous one.
class CapabilityReader
{
  public:
    CapabilityReader(const CSIURegInfo& config, const siu::PortArray& array, CLog* pLog)
        : m_array(array), m_path(FormatString(L"%s%s\\CAPABILITIES", kDeviceRoot, config.GetExeDllMother(1, nullptr))),
          m_log(pLog)
    {}

    // Calls `read(const siu::Port&, WORD& fwPort)` for each port, unless the gate is missing or 0.
    template <std::size_t N, class F>
    void Read(WORD (&ports)[N], F read, LPCWSTR lpszLegend = nullptr)
    {
        if (!IsSet(m_array.gate)) {
            return;
        }
        if (lpszLegend != nullptr) {
            PrintHeader(lpszLegend);
        }
        PrintHeader(m_array.name);
        LogInfo(m_log, L"[CFG] %40s : %d", m_array.gate, m_dwHolder);
        m_path = m_path + L'\\' + m_array.name + L'\\';
        const auto length = m_path.size();
        for (const auto& port : m_array.ports) {
            m_port = &port;
            m_path.resize(length);
            m_path += port.name;
            read(port, ports[port.index]);
        }
    }
    bool IsPresent(LPCWSTR lpszValue)
    {
        ValueView view; // of most ports one value is asked
        return m_scope->QueryAt(m_path, lpszValue, view) == Outcome::Found && ToValue(view, m_dwHolder);
    }
    bool IsSet(LPCWSTR lpszValue) { return IsPresent(lpszValue) && m_dwHolder != 0; }
    DWORD Holder() const noexcept { return m_dwHolder; }

    // Adds the states that are set; `printsZero` logs those that are 0 too.
    void AddStates(WORD& fwPort, bool printsZero)
    {
        for (const auto& state : m_port->form.states) {
            if (state.name == siu::kAvailable || state.name == siu::kNotAvailable || !IsPresent(state.name)) {
                continue;
            }
            if (m_dwHolder != 0) {
                fwPort = static_cast<WORD>(fwPort | state.bit);
            }
            if (m_dwHolder != 0 || printsZero) {
                Print(state.name);
            }
        }
    }
    void Print(LPCWSTR lpszValue, DWORD dwValue) const
    {
        LogInfo(m_log, L"[CFG] %40s : %d[%s[%s]]", lpszValue, dwValue, m_array.name, m_port->name);
    }
    void Print(LPCWSTR lpszValue) const { Print(lpszValue, m_dwHolder); }

  private:
    void PrintHeader(LPCWSTR lpszCaption) const
    {
        LogInfo(m_log, L"[CFG] %30s%s%s", std::wstring(31, L'*'), lpszCaption, std::wstring(33, L'*'));
    }

    ReadScope m_scope;
    const siu::PortArray& m_array;
    std::wstring m_path;
    const siu::Port* m_port = nullptr;
    CLog* m_log;
    DWORD m_dwHolder = 0;
};

// Calls `gate(row, value)`, then `state(row, port, value)` for each saved state in the order of saving, with what Save
// writes. The port is the iteration of the row.
template <std::size_t N, class Gate, class State>
void ForEachSaved(const siu::PortArray& array, const WORD (&ports)[N], Gate gate, State state)
{
    const auto gates = Rows<kCapabilities>.All();
    gate(*std::find_if(gates.begin(), gates.end(), [&](const Setting& row) { return row.name == array.gate; }),
         std::any_of(array.ports.begin(), array.ports.end(),
                     [&](const siu::Port& port) { return port.IsSaved() && ports[port.index] != 0; }));
    for (unsigned i = 0; i < array.ports.size(); ++i) {
        const auto& port = array.ports[i];
        const auto& states = port.form.states;
        for (unsigned place = 1; port.IsSaved() && place <= states.size(); ++place) {
            for (std::size_t each = 0; each < states.size(); ++each) {
                if (states[each].written == place) {
                    const bool bBit = (ports[port.index] & states[each].bit) != 0;
                    state(port.form.rows[each], Iteration{port.name, i, i},
                          states[each].name == siu::kNotAvailable ? !bBit : bBit);
                }
            }
        }
    }
}

template <std::size_t N>
void RememberCapabilities(Loading& loading, const siu::PortArray& array, const WORD (&ports)[N])
{
    const auto remember = [&](const Setting& row, const Iteration& port, bool bSet) {
        loading.Remember(row, port, bSet ? 1 : 0);
    };
    ForEachSaved(
        array, ports, [&](const Setting& row, bool bSet) { remember(row, {}, bSet); }, remember);
}

// Writes the gate and what is saved of the ports.
template <std::size_t N>
void WriteCapabilities(CSIURegInfo& config, const siu::PortArray& array, const WORD (&ports)[N])
{
    WriteScope scope;
    Saving saving(config);
    const auto gateKey = scope->Open(kDeviceRoot + config.GetExeDllMother(1, nullptr).Std() + array.gateKey);
    ForEachSaved(
        array, ports, [&](const Setting& row, bool bSet) { saving.Put(gateKey, row, {}, bSet ? 1 : 0); },
        [&](const Setting& row, const Iteration& port, bool bSet) { saving.Put(row, port, bSet ? 1 : 0); });
}

// ---- ports whose events are enabled automatically ----

// Calls `visit(kind, flags)` for each kind of port, as the names of the values have it.
template <class Config, class F>
void ForEachFlags(Config& config, F visit)
{
    visit(L"Sensor", config.m_bySensorAutoEnable);
    visit(L"Door", config.m_byDoorAutoEnable);
    visit(L"Indicator", config.m_byIndicatorAutoEnable);
    visit(L"Auxiliarie", config.m_byAuxiliaryAutoEnable);
    visit(L"GuidLight", config.m_byGuidLightAutoEnable);
}

} // namespace

const Table& CSIURegInfo::Settings() noexcept
{
    static constexpr Setting kSettings[] = {
        Group(Rows<kCapabilities>),
        Group(Rows<kEvents>),
        Step([](C& c, Loading& loading) { c.LoadEnableStatus(loading.Log()); }),
        Group(Rows<kControls>),
    };
    static constexpr const wchar_t* kSaved[] = {kKeyboardMapping.subkey, L"CanpostKeyEvent",
                                                L"ThinkOfDevStatusWhenEnableEvents", kAutoEnable.subkey,
                                                L"SetStatusNotAvailableWhenSetFail"};
    static constexpr auto kSaveOrder = SaveOrder<kSettings, kSaved>;
    static const Table table{L"CSIURegInfo", &CRegInfo::Settings, L"SIU", Rows<kSettings>, kSaveOrder};
    return table;
}

CSIURegInfo::CSIURegInfo(const CString& strName, bool bPhysicalName) : CRegInfo(strName, bPhysicalName)
{
    Construct(*this, Settings().rows);
    for (unsigned key = 1; key <= kAgentKeys; ++key) {
        m_mapKeyboardMapping.SetAt(FormatString(L"%d", key).c_str(), L"");
    }
}

CSIURegInfo::~CSIURegInfo() = default;

bool CSIURegInfo::Load(CLog* pLog)
{
    Loading loading(*this, pLog);
    const bool bResult = CRegInfo::Load(pLog);
    GetSensorsCap(&m_stSiuCaps, pLog);
    GetDoorsCap(&m_stSiuCaps, pLog);
    GetIndicatorsCap(&m_stSiuCaps, pLog);
    GetAuxiliariesCap(&m_stSiuCaps, pLog);
    GetGuidlightsCap(&m_stSiuCaps, pLog);
    if (GetSavePolicy() == SavePolicy::OwnChanges) { // spares the walk
        RememberCapabilities(loading, siu::kSensors, m_stSiuCaps.fwSensors);
        RememberCapabilities(loading, siu::kDoors, m_stSiuCaps.fwDoors);
        RememberCapabilities(loading, siu::kIndicators, m_stSiuCaps.fwIndicators);
        RememberCapabilities(loading, siu::kAuxiliaries, m_stSiuCaps.fwAuxiliaries);
        RememberCapabilities(loading, siu::kGuidLights, m_stSiuCaps.fwGuidLights);
    }
    return loading.Read(Settings()) && bResult;
}

void CSIURegInfo::GetSensorsCap(_wfs_siu_caps* pCaps, CLog* pLog)
{
    CapabilityReader reader(*this, siu::kSensors, pLog);
    const auto read = [&](const siu::Port& port, WORD& fwPort) {
        if (reader.IsSet(siu::kAvailable)) {
            fwPort = WFS_SIU_AVAILABLE;
        }
        if (reader.IsSet(siu::kNotAvailable)) {
            fwPort = 0;
        } else if (port.index == WFS_SIU_OPERATORSWITCH) {
            reader.AddStates(fwPort, false);
        } else {
            reader.Print(siu::kAvailable);
        }
    };
    reader.Read(pCaps->fwSensors, read, L"0 = no such capability, non-0 = capability present");
}

void CSIURegInfo::GetDoorsCap(_wfs_siu_caps* pCaps, CLog* pLog)
{
    CapabilityReader reader(*this, siu::kDoors, pLog);
    reader.Read(pCaps->fwDoors, [&](const siu::Port&, WORD& fwPort) {
        if (reader.IsSet(siu::kNotAvailable)) {
            fwPort = 0;
        } else if (reader.Holder() == 0) {
            // Where the value is missing, the one that was read last decides: the gate, for the first door.
            reader.AddStates(fwPort, true);
        }
    });
}

void CSIURegInfo::GetIndicatorsCap(_wfs_siu_caps* pCaps, CLog* pLog)
{
    CapabilityReader reader(*this, siu::kIndicators, pLog);
    reader.Read(pCaps->fwIndicators, [&](const siu::Port& port, WORD& fwPort) {
        const bool bPresent = reader.IsPresent(siu::kAvailable);
        if (port.form.states.front().standard != 0) { // there unless told otherwise
            fwPort = bPresent && reader.Holder() == 0 ? WFS_SIU_NOT_AVAILABLE : WFS_SIU_AVAILABLE;
        } else if (bPresent && reader.Holder() != 0) {
            fwPort = WFS_SIU_AVAILABLE;
        }
        if (!std::wstring_view(port.name).starts_with(L"INDICATOR_")) {
            reader.Print(siu::kAvailable, fwPort == WFS_SIU_AVAILABLE ? 1 : 0);
        }
    });
}

void CSIURegInfo::GetAuxiliariesCap(_wfs_siu_caps* pCaps, CLog* pLog)
{
    CapabilityReader reader(*this, siu::kAuxiliaries, pLog);
    reader.Read(pCaps->fwAuxiliaries, [&](const siu::Port& port, WORD& fwPort) {
        if (reader.IsPresent(siu::kAvailable)) {
            if (reader.Holder() != 0) {
                fwPort = port.index == WFS_SIU_VOLUME ? LOWORD(reader.Holder()) : WFS_SIU_AVAILABLE;
            }
            reader.Print(siu::kAvailable);
        }
        if (reader.IsSet(siu::kNotAvailable)) {
            fwPort = 0;
        } else {
            reader.AddStates(fwPort, false);
        }
    });
}

void CSIURegInfo::GetGuidlightsCap(_wfs_siu_caps* pCaps, CLog* pLog)
{
    CapabilityReader reader(*this, siu::kGuidLights, pLog);
    reader.Read(pCaps->fwGuidLights, [&](const siu::Port&, WORD& fwPort) {
        if (reader.IsSet(siu::kAvailable)) {
            fwPort = WFS_SIU_AVAILABLE;
        }
        reader.Print(siu::kAvailable);
    });
}

void CSIURegInfo::LoadEnableStatus(CLog* pLog)
{
    for (const auto& [strValueName, strData] : m_mapAutoEnable) {
        if (ParseDecimal(strData.View()) != 0) {
            LogInfo(pLog, L"[CFG] %40s : %s[%s]", strValueName, strData,
                    L"ports whose events are enabled automatically: 0 no; nonzero yes");
            SetEnableStatus(strValueName, pLog);
        }
    }
}

void CSIURegInfo::SetEnableStatus(const CString& strValueName, CLog*)
{
    const std::wstring_view name = strValueName.View();
    const auto separator = name.rfind(L'_');
    if (separator == std::wstring_view::npos || separator == 0 || separator + 1 == name.size()) {
        return;
    }
    const auto digits = name.substr(separator + 1);
    const LONG index = ParseDecimal(digits);
    if (index < 0 || (index == 0 && digits.front() != L'0')) {
        return;
    }
    ForEachFlags(*this, [&](std::wstring_view kind, auto& flags) {
        if (name.substr(0, separator) == kind && static_cast<std::size_t>(index) < std::size(flags)) {
            flags[index] = 1;
        }
    });
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
    SaveEnableStatus();
    saving.Write(Settings());
}

void CSIURegInfo::SetSensorsCap(_wfs_siu_caps* pCaps)
{
    WriteCapabilities(*this, siu::kSensors, pCaps->fwSensors);
}

void CSIURegInfo::SetDoorsCap(_wfs_siu_caps* pCaps)
{
    WriteCapabilities(*this, siu::kDoors, pCaps->fwDoors);
}

void CSIURegInfo::SetIndicatorsCap(_wfs_siu_caps* pCaps)
{
    WriteCapabilities(*this, siu::kIndicators, pCaps->fwIndicators);
}

void CSIURegInfo::SetAuxiliariesCap(_wfs_siu_caps* pCaps)
{
    WriteCapabilities(*this, siu::kAuxiliaries, pCaps->fwAuxiliaries);
}

void CSIURegInfo::SetGuidlightsCap(_wfs_siu_caps* pCaps)
{
    WriteCapabilities(*this, siu::kGuidLights, pCaps->fwGuidLights);
}

void CSIURegInfo::SaveEnableStatus()
{
    m_mapAutoEnable.RemoveAll();
    ForEachFlags(*this, [&](LPCWSTR lpszKind, const auto& flags) {
        for (unsigned i = 0; i < std::size(flags); ++i) {
            if (flags[i] != 0) {
                m_mapAutoEnable.SetAt(FormatString(L"%s_%d", lpszKind, i).c_str(), L"1");
            }
        }
    });
}

WQSPCFG_CATALOGUE_ENTRY(CSIURegInfo)
