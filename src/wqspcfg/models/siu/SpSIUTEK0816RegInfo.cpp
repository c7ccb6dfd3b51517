#include "wqspcfg/models/siu/SpSIUTEK0816RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/SIUPorts.h"
#include "wqspcfg/parts/meanings/SIU.h"
#include "wqspcfg/parts/meanings/Shared.h"
#include "wqspcfg/platform/text/CaseFold.h"

#include <algorithm>
#include <string_view>

using namespace wqspcfg;
using C = CSpSIUTEK0816RegInfo;

namespace {

constexpr DWORD kNotUsed = 0xFFFFFFFF;

constexpr Key kLightKey = key::Below(L"Lights");
constexpr Key kSwitchKey = key::Below(L"Switches");
constexpr Key kUps = key::Below(L"UPS");
constexpr Key kControl = key::Below(L"control\\");

// clang-format off
constexpr Setting kLightRows[] = {
    {kLightKey, L"Light%d", Element<&C::m_arLight, &TEK0816Port::dwIndex>,
     -1, L"index of the XFS port that this light stands for, where its type does not tell it: -1 not used", Saved},
    {kLightKey, L"Light%d_Pol", Element<&C::m_arLight, &TEK0816Port::dwPol>, 0, meaning::kLightPolarity, Saved},
    {kLightKey, L"Light%d_ToType", Element<&C::m_arLight, &TEK0816Port::strToType>,
     L"LIGHT", L"XFS port, or kind of XFS port, that this light stands for", Saved},
};
constexpr Setting kSwitchRows[] = {
    {kSwitchKey, L"Switch%d", Element<&C::m_arSwitch, &TEK0816Port::dwIndex>,
     -1, L"index of the XFS port that this switch stands for, where its type does not tell it: -1 not used", Saved},
    {kSwitchKey, L"Switch%d_Pol", Element<&C::m_arSwitch, &TEK0816Port::dwPol>,
     0, meaning::kSwitchPolarity, Saved},
    {kSwitchKey, L"Switch%d_ToType", Element<&C::m_arSwitch, &TEK0816Port::strToType>,
     L"Door", L"XFS port, or kind of XFS port, that this switch stands for", Saved},
};

constexpr Setting kSettings[] = {
    {key::Comm, L"Port", &C::m_dwPort, 2,
     meaning::kPort, Saved, RefersTo(Reference::SerialPort)},
    {key::Comm, L"BaudRate", &C::m_dwBaudRate, 9600, meaning::kBaudRate, Saved},
    {key::Comm, L"PortScr", &C::m_dwPortScr, 6,
     meaning::kPortScr, Saved, RefersTo(Reference::SerialPort)},
    {key::Comm, L"BaudRateScr", &C::m_dwBaudRateScr, 115200, meaning::kBaudRateScr, Saved},
    {key::Control, L"IsDoorStChangeSwitchSt", &C::m_bIsDoorStChangeSwitchSt, 0,
     meaning::kIsDoorStChangeSwitchSt, Saved},
    {key::Control, L"CloseAsOpen", &C::m_bCloseAsOpen, 0,
     L"a closed door is reported as open: 0 no; nonzero yes", Saved},
    {key::Control, L"BSTIsUsed", &C::m_bBSTIsUsed, 1,
     L"the BST is used: 0 no; nonzero yes", Saved},
    {key::Control, L"CoolingTime", &C::m_dwCoolingTime, 15, meaning::kCoolingTime, Saved},
    {key::Device, L"ManualResetSkimmerStatus", &C::m_bManualResetSkimmerStatus, 0,
     meaning::kManualResetSkimmerStatus, Saved},
    {key::Device, L"UseSafeAgent", &C::m_dwUseSafeAgent, 0, meaning::kUseSafeAgent, Saved},
    Group(Rows<kSafeAgentRows<C>>),
    Repeat(1, C::kLights, Rows<kLightRows>),
    Repeat(1, C::kSwitches, Rows<kSwitchRows>),
    {kUps, L"UseSBUPS", &C::m_bUseSBUPS, 0,
     L"the SB UPS is used: 0 no; nonzero yes", Saved},
    {kUps, L"SBDevType", &C::m_dwSBDevType, 0,
     L"device type of the SB UPS", Saved},
    {kUps, L"UPSBaudRate", &C::m_dwUPSBaudRate, 9600,
     L"serial speed of the UPS in baud", Saved},
    {kUps, L"UPSPort", &C::m_dwUPSPort, 3,
     L"serial port number of the UPS", Saved, RefersTo(Reference::SerialPort)},
    {key::Beep, L"SlowFlash", &C::m_strSlowFlash, L"",
     L"sound file that goes with slow flashing", Saved, RefersTo(Reference::File)},
    {key::Beep, L"QuickFlash", &C::m_strQuickFlash, L"",
     L"sound file that goes with quick flashing", Saved, RefersTo(Reference::File)},
    {key::Beep, L"MediumFlash", &C::m_strMediumFlash, L"",
     L"sound file that goes with medium flashing", Saved, RefersTo(Reference::File)},
    {key::Device, L"SIUTYPE", &C::m_dwSIUTYPE, 0, L"type of the unit", Saved},
    {kControl, L"RearUpDoorRelationCabinet", &C::m_dwRearUpDoorRelationCabinet, 0,
     meaning::kRearUpDoorRelationCabinet, Saved},
    {kControl, L"KeepSupervisorCabinetOpen", &C::m_dwKeepSupervisorCabinetOpen, 1,
     meaning::kKeepSupervisorCabinetOpen, Saved},
    {kControl, L"UseAuraLight", &C::m_bUseAuraLight, 0,
     meaning::kUseAuraLight, Saved},
    {kControl, L"SetScreenSTByProximityST", &C::m_bSetScreenSTByProximityST, 0,
     meaning::kSetScreenSTByProximityST, Saved},
    {kControl, L"ScreenPowerOffCoolDownTime", &C::m_dwScreenPowerOffCoolDownTime, 15,
     meaning::kScreenPowerOffCoolDownTime, Saved},
    {kControl, L"SetCameraGuidLightOn", &C::m_bSetCameraGuidLightOn, 0,
     meaning::kSetCameraGuidLightOn, Saved},
    {kControl, L"DecorateDoorRelateCabinet", &C::m_dwDecorateDoorRelateCabinet, 0,
     meaning::kDecorateDoorRelateCabinet, Saved},
};
// clang-format on

struct PortKind
{
    XFSPort::Kind kind;
    std::wstring_view names[2];
    const siu::PortArray& array;
};
constexpr PortKind kPortKinds[] = {
    {XFSPort::Kind::GuidLight, {L"LIGHT", L"GUIDLIGHT"}, siu::kGuidLights},
    {XFSPort::Kind::Door, {L"DOOR", L"DOOR"}, siu::kDoors},
    {XFSPort::Kind::Sensor, {L"SENSOR", L"SENSOR"}, siu::kSensors},
    {XFSPort::Kind::Indicator, {L"INDICATOR", L"INDICATOR"}, siu::kIndicators},
    {XFSPort::Kind::Auxiliary, {L"AUXILIARY", L"AUXILIARIE"}, siu::kAuxiliaries},
};

// The text must be a decimal number below `limit`.
bool ToIndex(std::wstring_view text, std::size_t limit, DWORD& dwIndex)
{
    std::size_t number = 0;
    for (const wchar_t digit : text) {
        if (digit < L'0' || digit > L'9') {
            return false;
        }
        number = std::min<std::size_t>(number * 10 + static_cast<std::size_t>(digit - L'0'), limit);
    }
    dwIndex = static_cast<DWORD>(number);
    return !text.empty() && number < limit;
}

} // namespace

const Table& CSpSIUTEK0816RegInfo::Settings() noexcept
{
    static const Table table{L"CSpSIUTEK0816RegInfo", &CSIURegInfo::Settings, nullptr, Rows<kSettings>};
    return table;
}

CSpSIUTEK0816RegInfo::CSpSIUTEK0816RegInfo(const CString& strName, bool bPhysicalName)
    : CSIURegInfo(strName, bPhysicalName)
{
    Construct(*this, Rows<kSettings>);
}

CSpSIUTEK0816RegInfo::~CSpSIUTEK0816RegInfo() = default;

bool CSpSIUTEK0816RegInfo::Load(CLog* pLog)
{
    Loading loading(*this, pLog);
    const bool bResult = CSIURegInfo::Load(pLog);
    loading.Read(Settings());
    for (auto& light : m_arLight) {
        light.port = ResolveXFSInd(light.strToType, light.dwIndex);
    }
    for (auto& sw : m_arSwitch) {
        sw.port = ResolveXFSInd(sw.strToType, sw.dwIndex);
    }
    return bResult;
}

void CSpSIUTEK0816RegInfo::Save()
{
    Saving saving(*this);
    CSIURegInfo::Save();
    saving.Write(Settings());
}

XFSPort CSpSIUTEK0816RegInfo::ResolveXFSInd(const CString& strType, DWORD dwIndex)
{
    if (dwIndex == kNotUsed) {
        return {};
    }
    CString strTrimmed = strType;
    const std::wstring_view type = strTrimmed.Trim().View();
    for (const auto& kind : kPortKinds) {
        for (const auto& port : kind.array.ports) {
            if (EqualNoCase(type, port.name)) {
                return {kind.kind, static_cast<WORD>(port.index)};
            }
        }
    }
    for (const auto& kind : kPortKinds) {
        for (const auto name : kind.names) {
            if (!EqualNoCase(type.substr(0, name.size()), name)) {
                continue;
            }
            const auto rest = type.substr(name.size());
            DWORD dwFound = dwIndex;
            if (rest.empty() ? dwIndex < kind.array.size
                             : rest.front() == L'_' && ToIndex(rest.substr(1), kind.array.size, dwFound)) {
                return {kind.kind, LOWORD(dwFound)};
            }
        }
    }
    return {};
}

WQSPCFG_CATALOGUE_ENTRY(CSpSIUTEK0816RegInfo)
