#include "wqspcfg/models/idc/SpIDCDCT10NIDFRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/IDC.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using C = CSpIDCDCT10NIDFRegInfo;

namespace {

constexpr Key kTimeSet = key::Below(L"TimeSet");

// clang-format off
constexpr Setting kSettings[] = {
    {key::Comm,    L"BaudRate",                &C::m_dwBaudRate,                 9600, meaning::kBaudRate, Saved},
    {key::Comm,    L"Port",                    &C::m_dwPort,                     1,    meaning::kPort, Saved},
    {key::Device,  L"CpuCardType",             &C::m_dwCpuCardType,              0,    meaning::kCpuCardType, Saved},
    {kTimeSet,     L"TimesOfGetStIfSwitchLed", &C::m_dwTimesOfGetStIfSwitchLed,  1,    meaning::kTimesOfGetStIfSwitchLed, Saved},
    {key::Device,  L"IDCardImagePath",         &C::m_strIDCardImagePath,         L"",  meaning::kIDCardImagePath, Saved},
    {key::Device,  L"IDCardImagePathBeCopyed", &C::m_strIDCardImagePathBeCopyed, L"",  meaning::kIDCardImagePathBeCopyed, Saved},
    {key::Device,  L"IsUnContactFailed",       &C::m_bIsUnContactFailed,         0,    meaning::kIsUnContactFailed, Saved},
    {key::Device,  L"GetImageFrontAndBack",    &C::m_bGetImageFrontAndBack,      0,    meaning::kGetImageFrontAndBack, Saved},
    {key::Device,  L"ImageFrontPath",          &C::m_strImageFrontPath,          L"",  meaning::kImageFrontPath, Saved},
    {key::Device,  L"ImageBackPath",           &C::m_strImageBackPath,           L"",  meaning::kImageBackPath, Saved},
    {key::Control, L"CheckCardInsertOfIdle",   &C::m_bCheckCardInsertOfIdle,     0,    meaning::kCheckCardInsertOfIdle, Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpIDCDCT10NIDFRegInfo, CIDCRegInfo, kSettings)
