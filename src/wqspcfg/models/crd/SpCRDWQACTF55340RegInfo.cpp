#include "wqspcfg/models/crd/SpCRDWQACTF55340RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/CRD.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using C = CSpCRDWQACTF55340RegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Comm,    L"Port",                        &C::m_dwPort,                       1,    meaning::kPort, Saved},
    {key::Comm,    L"BaudRate",                    &C::m_dwBaudRate,                   9600, meaning::kBaudRate, Saved},
    {key::Control, L"PowerOnOption",               &C::m_dwPowerOnOption,              1,    meaning::kPowerOnOption, Saved, OneOf},
    {key::Control, L"CloseOption",                 &C::m_dwCloseOption,                2,    meaning::kCloseOption, Saved, OneOf},
    {key::Control, L"DispenseBin1",                &C::m_dwDispenseBin1,               2,    meaning::kDispenseBin1, Saved},
    {key::Control, L"DispenseBin2",                &C::m_dwDispenseBin2,               3,    meaning::kDispenseBin2, Saved},
    {key::Control, L"RetainBin",                   &C::m_dwRetainBin,                  1,    meaning::kRetainBin, Saved},
    {key::Control, L"MaxSupplyCard",               &C::m_dwMaxSupplyCard,              100,  meaning::kMaxSupplyCard, Saved},
    {key::Control, L"SupplyBinLow",                &C::m_dwSupplyBinLow,               5,    meaning::kSupplyBinLow, Saved},
    {key::Control, L"RetainBinStatus",             &C::m_dwRetainBinStatus,            0,    meaning::kRetainBinStatus, Saved, OneOf},
    {key::Control, L"NeedSupportMediaLatched",     &C::m_bNeedSupportMediaLatched,     0,    meaning::kMediaLatched, Saved},
    {key::Control, L"AllowDispenseOfRetainBinErr", &C::m_bAllowDispenseOfRetainBinErr, 0,    meaning::crd::kAllowDispenseOfRetainBinErr, Saved},
    {key::Control, L"ReConnectSuccessOption",      &C::m_dwReConnectSuccessOption,     2,    meaning::crd::kReConnectSuccessOption, Saved, OneOf},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpCRDWQACTF55340RegInfo, CCRDRegInfo, kSettings)
