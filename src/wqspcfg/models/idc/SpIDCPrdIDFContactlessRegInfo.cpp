#include "wqspcfg/models/idc/SpIDCPrdIDFContactlessRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/IDC.h"

using namespace wqspcfg;
using C = CSpIDCPrdIDFContactlessRegInfo;

namespace {

constexpr Key kFormatData = key::Below(L"FormatData");
constexpr Key kPicPath = key::Below(L"PicPath");
constexpr Key kCapability = key::Below(L"Capability");

// clang-format off
constexpr Setting kSettings[] = {
    {key::Device,  L"DN.IDF_CONTACTLESS",              &C::m_strDN_IDF_CONTACTLESS,            L"",  L"name of the device driver module of the contactless identity card reader", Saved},
    {kFormatData,  L"Track1Format",                    &C::m_strTrack1Format,                  L"",  meaning::kTrack1Format, Saved},
    {kFormatData,  L"Track2Format",                    &C::m_strTrack2Format,                  L"",  meaning::kTrack2Format, Saved},
    {kFormatData,  L"Track3Format",                    &C::m_strTrack3Format,                  L"",  meaning::kTrack3Format, Saved},
    {kFormatData,  L"ChipFormat",                      &C::m_strChipFormat,                    L"",  meaning::kChipFormat, Saved},
    {kFormatData,  L"FrontImageFormat",                &C::m_strFrontImageFormat,              L"",  meaning::kFrontImageFormat, Saved},
    {kFormatData,  L"BackImageFormat",                 &C::m_strBackImageFormat,               L"",  meaning::kBackImageFormat, Saved},
    {kFormatData,  L"TrackWMFormat",                   &C::m_strTrackWMFormat,                 L"",  meaning::kTrackWMFormat, Saved},
    {kPicPath,     L"HeadPicPath",                     &C::m_strHeadPicPath,                   L"",  meaning::kHeadPicPath, Saved},
    {kPicPath,     L"FrontPicPath",                    &C::m_strFrontPicPath,                  L"",  meaning::kFrontPicPath, Saved},
    {kPicPath,     L"BackPicPath",                     &C::m_strBackPicPath,                   L"",  meaning::kBackPicPath, Saved},
    {kCapability,  L"ReadTracks",                      &C::m_dwReadTracks,                     7,    meaning::kReadTracks, Saved},
    {key::Control, L"WidthOfFrontBack",                &C::m_dwWidthOfFrontBack,               1011, meaning::kWidthOfFrontBack, Saved},
    {key::Control, L"HeightOfFrontBack",               &C::m_dwHeightOfFrontBack,              638,  meaning::kHeightOfFrontBack, Saved},
    {key::Control, L"IsExeComReturnFailofContactless", &C::m_bIsExeComReturnFailofContactless, 0,    L"execute commands of the contactless reader return failure: 0 no; nonzero yes", Saved},
    {key::Control, L"IsUpdateMediaInOnIdle",           &C::m_bIsUpdateMediaInOnIdle,           0,    L"the media status is updated while idle: 0 no; nonzero yes", Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpIDCPrdIDFContactlessRegInfo, CIDCRegInfo, kSettings)
