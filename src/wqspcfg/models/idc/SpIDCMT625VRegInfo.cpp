#include "wqspcfg/models/idc/SpIDCMT625VRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/IDC.h"

using namespace wqspcfg;
using C = CSpIDCMT625VRegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Device, L"CpuCardType", &C::m_dwCpuCardType, 0, meaning::kCpuCardType, Saved},
    {key::Device, L"CPUCardLogicName", &C::m_strCPUCardLogicName, L"",
     meaning::kCPUCardLogicName, Saved, RefersTo(Reference::LogicalService)},
    {key::Device, L"SimReader", &C::m_strSimReader, L"", meaning::kSimReader, Saved},
    {key::Device, L"IDCardLogicName", &C::m_strIDCardLogicName, L"",
     meaning::kIDCardLogicName, Saved, RefersTo(Reference::LogicalService)},
    {key::Device, L"CertRead",     &C::m_strCertRead,     L"", meaning::kCertRead, Saved},
    {key::Device, L"ImagePath",    &C::m_strImagePath,    L"", L"path of the image", Saved},
    {key::Device, L"IDInfoFormat", &C::m_strIDInfoFormat, L"", L"format of the identity card's information", Saved},
    {key::Device, L"FrontIDPicPath", &C::m_strFrontIDPicPath, L"",
     L"path of the picture of the identity card's front", Saved},
    {key::Device, L"BackIDPicPath", &C::m_strBackIDPicPath, L"",
     L"path of the picture of the identity card's back", Saved},
    {key::Device, L"IsSaveIDPic", &C::m_bIsSaveIDPic, 0,
     L"the picture of the identity card is saved: 0 no; nonzero yes", Saved},
    {key::Device, L"SupportChipPower", &C::m_bSupportChipPower, 0, meaning::kSupportChipPower, Saved},
    {key::Beep, L"IsMediaChangeBeep", &C::m_bIsMediaChangeBeep, 0,
     L"a change of the media status is signalled with a beep: 0 no; nonzero yes", Saved},
    {key::Beep, L"BeepFre",      &C::m_dwBeepFre,      1000, L"frequency of the beep in Hz", Saved},
    {key::Beep, L"BeepKeepTime", &C::m_dwBeepKeepTime, 200,  L"duration of the beep in ms", Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpIDCMT625VRegInfo, CIDCRegInfo, kSettings)
