// The ports of a sensors and indicators unit: how the registry names them, where they stand in the XFS capabilities,
// which values their keys hold, and what of it is saved. Load, Save and the reference come from these descriptions.
#pragma once

#include "wqspcfg/core/settings/Setting.h"
#include "wqspcfg/platform/xfs/XfsSiu.h"

#include <array>
#include <iterator>
#include <span>

namespace wqspcfg::siu {

// A value in the key of a port.
struct State
{
    const wchar_t* name;
    WORD bit;         // in the port's word of the capabilities
    unsigned written; // its place among the values that Save writes for the port, from 1; 0: it is not written
    const wchar_t* meaning;
    DWORD standard = 0;   // what a missing value means
    bool isCount = false; // the word holds the number itself
};

// The values that the keys of like ports hold, in the order in which they are read, and the rows that document them.
struct Form
{
    std::span<const State> states;
    RowList rows;
};

struct Port
{
    const wchar_t* name;
    std::size_t index; // in the array of the capabilities
    Form form;

    constexpr bool IsSaved() const
    {
        for (const auto& state : form.states) {
            if (state.written != 0) {
                return true;
            }
        }
        return false;
    }
};

// An array of the capabilities, in the order of its indices.
struct PortArray
{
    const wchar_t* name;
    std::size_t size;       // indices that the array has, configured or not
    const wchar_t* gate;    // the value that tells whether the ports are configured
    const wchar_t* gateKey; // where the gate is written, below the device key
    std::span<const Port> ports;
    bool needsNotAvailable = false; // without WFS_SIU_NOT_AVAILABLE the states may not be read
};

inline constexpr wchar_t kAvailable[] = L"WFS_SIU_AVAILABLE";
inline constexpr wchar_t kNotAvailable[] = L"WFS_SIU_NOT_AVAILABLE";

namespace detail {

inline constexpr wchar_t kThere[] = L"the port is there: 0 no; nonzero yes";
inline constexpr wchar_t kMissing[] = L"the port is not there, whatever else is set: 0 no; nonzero yes";
inline constexpr wchar_t kDoorMissing[] =
    L"the door is not there, whatever else is set: 0 no; nonzero yes; a door that is there "
    L"needs the value 0, for without it the value read before stands in its place";
inline constexpr wchar_t kUpsMissing[] =
    L"the UPS is not there, whatever else is set: 0 no; nonzero yes; saved as 1 where WFS_SIU_AVAILABLE is not in "
    L"effect, whatever the states are";
inline constexpr wchar_t kVolumeSteps[] =
    L"number of volume steps: 0 the volume cannot be set; saved as its lowest bit";
inline constexpr wchar_t kReports[] = L"the port can report or take this state: 0 no; nonzero yes";

inline constexpr Key kSensor = key::Below(L"CAPABILITIES\\fwSensors\\%s");
inline constexpr Key kDoor = key::Below(L"CAPABILITIES\\fwDoors\\%s");
inline constexpr Key kIndicator = key::Below(L"CAPABILITIES\\fwIndicators\\%s");
inline constexpr Key kAuxiliary = key::Below(L"CAPABILITIES\\fwAuxiliaries\\%s");
inline constexpr Key kGuidLight = key::Below(L"CAPABILITIES\\fwGuidLights\\%s");

// clang-format off
inline constexpr State kSwitchStates[] = {
    {kAvailable,             WFS_SIU_AVAILABLE,   0, L"the switch can report the run position: 0 no; nonzero yes"},
    {kNotAvailable,          WFS_SIU_AVAILABLE,   1, kMissing},
    {L"WFS_SIU_MAINTENANCE", WFS_SIU_MAINTENANCE, 2, kReports},
    {L"WFS_SIU_RUN",         WFS_SIU_RUN,         4, kReports},
    {L"WFS_SIU_SUPERVISOR",  WFS_SIU_SUPERVISOR,  3, kReports},
};
inline constexpr State kSavedStates[] = {
    {kAvailable,    WFS_SIU_AVAILABLE, 1, kThere},
    {kNotAvailable, WFS_SIU_AVAILABLE, 0, kMissing},
};
inline constexpr State kReadStates[] = {
    {kAvailable,    WFS_SIU_AVAILABLE, 0, kThere},
    {kNotAvailable, WFS_SIU_AVAILABLE, 0, kMissing},
};
inline constexpr State kBoltedDoorStates[] = {
    {kNotAvailable,       WFS_SIU_AVAILABLE, 1, kDoorMissing},
    {L"WFS_SIU_BOLTED",   WFS_SIU_BOLTED,    2, kReports},
    {L"WFS_SIU_CLOSED",   WFS_SIU_CLOSED,    3, kReports},
    {L"WFS_SIU_LOCKED",   WFS_SIU_LOCKED,    4, kReports},
    {L"WFS_SIU_OPEN",     WFS_SIU_OPEN,      5, kReports},
    {L"WFS_SIU_KEYBOARD", WFS_SIU_KEYBOARD,  0, kReports},
    {L"WFS_SIU_SERVICE",  WFS_SIU_SERVICE,   0, kReports},
};
inline constexpr State kShieldStates[] = {
    {kNotAvailable,       WFS_SIU_AVAILABLE, 1, kDoorMissing},
    {L"WFS_SIU_BOLTED",   WFS_SIU_BOLTED,    0, kReports},
    {L"WFS_SIU_CLOSED",   WFS_SIU_CLOSED,    3, kReports},
    {L"WFS_SIU_LOCKED",   WFS_SIU_LOCKED,    4, kReports},
    {L"WFS_SIU_OPEN",     WFS_SIU_OPEN,      5, kReports},
    {L"WFS_SIU_KEYBOARD", WFS_SIU_KEYBOARD,  2, kReports},
    {L"WFS_SIU_SERVICE",  WFS_SIU_SERVICE,   6, kReports},
};
inline constexpr State kSavedLightStates[] = {{kAvailable, WFS_SIU_AVAILABLE, 1, kThere}};
inline constexpr State kReadLightStates[] = {{kAvailable, WFS_SIU_AVAILABLE, 0, kThere}};
inline constexpr State kScreenStates[] = {{kAvailable, WFS_SIU_AVAILABLE, 0, kThere, 1}};
inline constexpr State kVolumeStates[] = {
    {kAvailable,    WFS_SIU_AVAILABLE, 1, kVolumeSteps, 0, true},
    {kNotAvailable, WFS_SIU_AVAILABLE, 0, kMissing},
};
inline constexpr State kUpsStates[] = {
    {kAvailable,           WFS_SIU_AVAILABLE, 0, kThere},
    {kNotAvailable,        WFS_SIU_AVAILABLE, 1, kUpsMissing},
    {L"WFS_SIU_ENGAGED",   WFS_SIU_ENGAGED,   2, kReports},
    {L"WFS_SIU_LOW",       WFS_SIU_LOW,       3, kReports},
    {L"WFS_SIU_POWERING",  WFS_SIU_POWERING,  4, kReports},
    {L"WFS_SIU_RECOVERED", WFS_SIU_RECOVERED, 5, kReports},
};
// clang-format on

template <const Key& PortKey, const auto& States>
inline constexpr auto kStateRows = [] {
    std::array<Setting, std::size(States)> rows;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const State& state = States[i];
        rows[i] = {PortKey, state.name, DwordValue, state.standard, state.meaning, NotLogged, Documented};
        rows[i].saved = state.written != 0;
    }
    return rows;
}();
template <const Key& PortKey, const auto& States>
inline constexpr Form kForm{States, Rows<kStateRows<PortKey, States>>};

inline constexpr Form kSavedSensor = kForm<kSensor, kSavedStates>;
inline constexpr Form kBoltedDoor = kForm<kDoor, kBoltedDoorStates>;
inline constexpr Form kSavedIndicator = kForm<kIndicator, kSavedLightStates>;
inline constexpr Form kReadIndicator = kForm<kIndicator, kReadLightStates>;
inline constexpr Form kScreen = kForm<kIndicator, kScreenStates>;
inline constexpr Form kSavedAuxiliary = kForm<kAuxiliary, kSavedStates>;
inline constexpr Form kSavedLight = kForm<kGuidLight, kSavedLightStates>;
inline constexpr Form kReadLight = kForm<kGuidLight, kReadLightStates>;

inline constexpr Port kSensorPorts[] = {
    {L"OPERATORSWITCH", WFS_SIU_OPERATORSWITCH, kForm<kSensor, kSwitchStates>},
    {L"TAMPER", WFS_SIU_TAMPER, kSavedSensor},
    {L"INTTAMPER", WFS_SIU_INTTAMPER, kSavedSensor},
    {L"SEISMIC", WFS_SIU_SEISMIC, kSavedSensor},
    {L"HEAT", WFS_SIU_HEAT, kSavedSensor},
    {L"PROXIMITY", WFS_SIU_PROXIMITY, kSavedSensor},
    {L"AMBLIGHT", WFS_SIU_AMBLIGHT, kSavedSensor},
    {L"ENHANCEDAUDIO", WFS_SIU_ENHANCEDAUDIO, kSavedSensor},
    {L"CALL_BUTTON", WFS_SIU_OPERATOR_CALL_BUTTON, kForm<kSensor, kReadStates>},
    {L"HANDSETSENSOR", WFS_SIU_HANDSETSENSOR, kSavedSensor},
};
inline constexpr Port kDoorPorts[] = {
    {L"CABINET", WFS_SIU_CABINET, kBoltedDoor},
    {L"SAFE", WFS_SIU_SAFE, kBoltedDoor},
    {L"VANDALSHIELD", WFS_SIU_VANDALSHIELD, kForm<kDoor, kShieldStates>},
};
// The published standard leaves the indicators from 4 on free.
inline constexpr Port kIndicatorPorts[] = {
    {L"OPENCLOSE", WFS_SIU_OPENCLOSE, kSavedIndicator},
    {L"FASCIALIGHT", WFS_SIU_FASCIALIGHT, kSavedIndicator},
    {L"AUDIO", WFS_SIU_AUDIO, kSavedIndicator},
    {L"HEATING", WFS_SIU_HEATING, kSavedIndicator},
    {L"INDICATOR_4", 4, kReadIndicator},
    {L"INDICATOR_5", 5, kReadIndicator},
    {L"REARSCREEN", 6, kScreen},
    {L"INDICATOR_7", 7, kReadIndicator},
    {L"INDICATOR_8", 8, kReadIndicator},
    {L"INDICATOR_9", 9, kReadIndicator},
    {L"INDICATOR_10", 10, kReadIndicator},
    {L"INDICATOR_11", 11, kReadIndicator},
    {L"INDICATOR_12", 12, kReadIndicator},
    {L"INDICATOR_13", 13, kReadIndicator},
    {L"FRONTSCREEN", 14, kScreen},
    {L"INDICATOR_15", 15, kReadIndicator},
};
inline constexpr Port kAuxiliaryPorts[] = {
    {L"VOLUME", WFS_SIU_VOLUME, kForm<kAuxiliary, kVolumeStates>},
    {L"UPS", WFS_SIU_UPS, kForm<kAuxiliary, kUpsStates>},
    {L"MONITOR", WFS_SIU_REMOTE_STATUS_MONITOR, kSavedAuxiliary},
    {L"ALARM", WFS_SIU_AUDIBLE_ALARM, kSavedAuxiliary},
    {L"ENHANCEDAUDIOCONTROL", WFS_SIU_ENHANCEDAUDIOCONTROL, kSavedAuxiliary},
};
inline constexpr Port kGuidLightPorts[] = {
    {L"CARDUNIT", WFS_SIU_CARDUNIT, kSavedLight},
    {L"PINPAD", WFS_SIU_PINPAD, kSavedLight},
    {L"NOTESDISPENSER", WFS_SIU_NOTESDISPENSER, kSavedLight},
    {L"COINDISPENSER", WFS_SIU_COINDISPENSER, kSavedLight},
    {L"RECEIPTPRINTER", WFS_SIU_RECEIPTPRINTER, kSavedLight},
    {L"PASSBOOKPRINTER", WFS_SIU_PASSBOOKPRINTER, kSavedLight},
    {L"ENVDEPOSITORY", WFS_SIU_ENVDEPOSITORY, kSavedLight},
    {L"CHEQUEUNIT", WFS_SIU_CHEQUEUNIT, kSavedLight},
    {L"BILLACCEPTOR", WFS_SIU_BILLACCEPTOR, kSavedLight},
    {L"ENVDISPENSER", WFS_SIU_ENVDISPENSER, kSavedLight},
    {L"DOCUMENTPRINTER", WFS_SIU_DOCUMENTPRINTER, kSavedLight},
    {L"COINACCEPTOR", WFS_SIU_COINACCEPTOR, kSavedLight},
    {L"SCANNER", WFS_SIU_SCANNER, kSavedLight},
    {L"WFS_GUIDLIGHT_13", 13, kReadLight},
    {L"WFS_GUIDLIGHT_14", 14, kReadLight},
    {L"WFS_GUIDLIGHT_15", 15, kReadLight},
};

} // namespace detail

// The gates are read from "CAPABILITIES"; all but the first are written with a trailing backslash.
inline constexpr PortArray kSensors{L"fwSensors", WFS_SIU_SENSORS_SIZE, L"WFS_SIU_SENSORS", L"\\CAPABILITIES",
                                    detail::kSensorPorts};
inline constexpr PortArray kDoors{L"fwDoors",          WFS_SIU_DOORS_SIZE, L"WFS_SIU_DOORS",
                                  L"\\CAPABILITIES\\", detail::kDoorPorts, true};
inline constexpr PortArray kIndicators{L"fwIndicators", WFS_SIU_INDICATORS_SIZE, L"WFS_SIU_INDICATORS",
                                       L"\\CAPABILITIES\\", detail::kIndicatorPorts};
inline constexpr PortArray kAuxiliaries{L"fwAuxiliaries", WFS_SIU_AUXILIARIES_SIZE, L"WFS_SIU_AUXILIARIES",
                                        L"\\CAPABILITIES\\", detail::kAuxiliaryPorts};
inline constexpr PortArray kGuidLights{L"fwGuidLights", WFS_SIU_GUIDLIGHTS_SIZE, L"WFS_SIU_GUIDLIGHTS",
                                       L"\\CAPABILITIES\\", detail::kGuidLightPorts};

// The rows that document the ports of an array, port by port.
template <const PortArray& Array>
inline constexpr auto kPortRows = [] {
    std::array<Setting, Array.ports.size()> rows;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const Port& port = Array.ports[i];
        rows[i].kind = Kind::Repeat;
        rows[i].rows = port.form.rows;
        rows[i].iterationNames = &port.name;
        rows[i].iterations = 1;
    }
    return rows;
}();

} // namespace wqspcfg::siu
