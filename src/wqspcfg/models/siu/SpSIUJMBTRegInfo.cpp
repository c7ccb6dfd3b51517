#include "wqspcfg/models/siu/SpSIUJMBTRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/SIU.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using C = CSpSIUJMBTRegInfo;

namespace {

constexpr Key kCoolingTime = key::Below(L"CoolingTime");
constexpr Key kLightsIndex = key::Below(L"Lights\\Index");
constexpr Key kLightsPolarity = key::Below(L"Lights\\Polarity");
constexpr Key kSwitchesIndex = key::Below(L"Switches\\Index");
constexpr Key kSwitchesPolarity = key::Below(L"Switches\\Polarity");
constexpr Key kSwitchesType = key::Below(L"Switches\\Type");

// A switch without a polarity becomes port 0 and keeps the polarity it has.
constexpr auto kNoPortWithoutPolarity = Normalize([](C& c, DWORD dwPolarity, bool bFound, unsigned n) -> DWORD {
    c.m_bSwitch_PolMissing[n] = !bFound;
    if (!bFound) {
        c.m_dwSwitch[n] = 0;
        c.m_dwSwitch_PolKept[n] = dwPolarity;
    }
    return dwPolarity;
});
// What Load made of a missing polarity is not saved: it would stand in the registry in place of the switch's port.
constexpr auto kUnlessMadeByLoad = SavedIf([](C& c, unsigned n) {
    if (c.m_bSwitch_PolMissing[n] && c.m_dwSwitch[n] == 0 && c.m_dwSwitch_Pol[n] == c.m_dwSwitch_PolKept[n]) {
        return false;
    }
    c.m_bSwitch_PolMissing[n] = false;
    return true;
});

// clang-format off
constexpr Setting kLightIndexRows[] = {
    {kLightsIndex, L"Light%d", Element<&C::m_dwLight>, -1,
     L"index of the guidance light that this light of the board stands for: -1 not used", Saved, Required()},
};
constexpr Setting kLightOffRows[] = {
    {kLightsPolarity, L"Light%d_OFF_Pol", Element<&C::m_dwLight_OFF_Pol>, 0,
     L"output level at which this light is off: 0 low; nonzero high", Saved, Required()},
};
constexpr Setting kLightOnRows[] = {
    {kLightsPolarity, L"Light%d_ON_Pol", Element<&C::m_dwLight_ON_Pol>, 0,
     L"output level at which this light is on: 0 low; nonzero high", Saved, Required()},
};
constexpr Setting kSwitchIndexRows[] = {
    {kSwitchesIndex, L"Switch%d", Element<&C::m_dwSwitch>, -1,
     L"index of the XFS port that this switch stands for: -1 not used", Saved, Required(), kUnlessMadeByLoad},
};
constexpr Setting kSwitchPolarityRows[] = {
    {kSwitchesPolarity, L"Switch%d_Pol", Element<&C::m_dwSwitch_Pol>, 0,
     meaning::kSwitchPolarity, Saved, Required(), KeepWhenMissing, Format(L"%-20ld"), kNoPortWithoutPolarity,
     kUnlessMadeByLoad},
};
constexpr Setting kSwitchTypeRows[] = {
    {kSwitchesType, L"Switch%d_ToType", Element<&C::m_strSwitch_ToType>, L"Door",
     L"kind of XFS port that this switch stands for", Saved, Required()},
};

constexpr Setting kSettings[] = {
    {key::Comm, L"Port", &C::m_dwPort, 2,
     meaning::kPort, Saved, Required(), RefersTo(Reference::SerialPort)},
    {key::Comm, L"BaudRate", &C::m_dwBaudRate, 9600, meaning::kBaudRate, Saved, Required()},
    {key::Comm, L"PortScr", &C::m_dwPortScr, 6,
     meaning::kPortScr, Saved, Required(), RefersTo(Reference::SerialPort)},
    {key::Comm,    L"BaudrateScr", &C::m_dwBaudrateScr, 115200, meaning::kBaudRateScr, Saved, Required()},
    {kCoolingTime, L"CoolingTime", &C::m_dwCoolingTime, 15,     meaning::kCoolingTime, Saved, Required()},
    {kCoolingTime, L"BSTIsNotUsed", &C::m_dwBSTIsNotUsed, 0,
     L"the BST is not used: 0 it is; nonzero it is not", Saved, Required()},
    Repeat(1, 8, Rows<kLightIndexRows>),
    {kLightsPolarity, L"ALL_Lights_OFF_Pol", &C::m_dwALL_Lights_OFF_Pol, 1,
     L"output level at which all lights are off: 0 low; nonzero high", Saved, Required()},
    Repeat(1, 8, Rows<kLightOffRows>),
    {kLightsPolarity, L"ALL_Lights_ON_Pol", &C::m_dwALL_Lights_ON_Pol, 1,
     L"output level at which all lights are on: 0 low; nonzero high", Saved, Required()},
    Repeat(1, 8, Rows<kLightOnRows>),
    Repeat(1, 4, Rows<kSwitchIndexRows>),
    Repeat(1, 4, Rows<kSwitchPolarityRows>),
    Repeat(1, 4, Rows<kSwitchTypeRows>),
};
// clang-format on

} // namespace

const Table& CSpSIUJMBTRegInfo::Settings() noexcept
{
    static const Table table{L"CSpSIUJMBTRegInfo", &CSIURegInfo::Settings, nullptr, Rows<kSettings>};
    return table;
}

CSpSIUJMBTRegInfo::CSpSIUJMBTRegInfo(const CString& strName, bool bPhysicalName) : CSIURegInfo(strName, bPhysicalName)
{
    Construct(*this, Rows<kSettings>);
}

CSpSIUJMBTRegInfo::~CSpSIUJMBTRegInfo() = default;

bool CSpSIUJMBTRegInfo::Load(CLog* pLog)
{
    Loading loading(*this, pLog);
    CSIURegInfo::Load(pLog);
    loading.Read(Settings());
    return true;
}

void CSpSIUJMBTRegInfo::Save()
{
    Saving saving(*this);
    CSIURegInfo::Save();
    saving.Write(Settings());
}

WQSPCFG_CATALOGUE_ENTRY(CSpSIUJMBTRegInfo)
