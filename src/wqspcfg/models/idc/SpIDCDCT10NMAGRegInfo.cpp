#include "wqspcfg/models/idc/SpIDCDCT10NMAGRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/IDC.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using C = CSpIDCDCT10NMAGRegInfo;

namespace {

constexpr Key kTimeSet = key::Below(L"TimeSet");

// clang-format off
constexpr Setting kSettings[] = {
    {key::Comm,    L"BaudRate",                &C::m_dwBaudRate,                9600, meaning::kBaudRate, Saved},
    {key::Comm,    L"Port",                    &C::m_dwPort,                    1,    meaning::kPort, Saved},
    {key::Device,  L"CpuCardType",             &C::m_dwCpuCardType,             0,    meaning::kCpuCardType, Saved},
    {kTimeSet,     L"TimesOfGetStIfSwitchLed", &C::m_dwTimesOfGetStIfSwitchLed, 1,    meaning::kTimesOfGetStIfSwitchLed, Saved},
    {key::Control, L"TimeOutOfReadMagCard",    &C::m_dwTimeOutOfReadMagCard,    30,   meaning::kTimeOutOfReadMagCard, Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpIDCDCT10NMAGRegInfo, CIDCRegInfo, kSettings)
