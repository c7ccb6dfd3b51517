#include "wqspcfg/models/idc/SpIDCID15RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/IDC.h"

using namespace wqspcfg;
using C = CSpIDCID15RegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Control, L"CardImagePath",            &C::m_strCardImagePath,          L"",   L"path of the card's image", Saved},
    {key::Control, L"FrontScanImagePath",       &C::m_strFrontScanImagePath,     L"",   L"path of the scanned image of the card's front", Saved},
    {key::Control, L"BackScanImagePath",        &C::m_strBackScanImagePath,      L"",   L"path of the scanned image of the card's back", Saved},
    {key::Device,  L"ImageSavePath",            &C::m_strImageSavePath,          L"",   meaning::kImageSavePath, Saved},
    {key::Device,  L"ScanFormat",               &C::m_dwScanFormat,              0,     meaning::kScanFormat, Saved},
    {key::Device,  L"ScanColor",                &C::m_dwScanColor,               0,     L"colour mode of scanning, as the device's driver numbers it", Saved},
    {key::Device,  L"IsReadIDCardInfo",         &C::m_bIsReadIDCardInfo,         1,     meaning::kReadIDCardInfo, Saved},
    {key::Device,  L"IsScan",                   &C::m_bIsScan,                   1,     L"the card is scanned: 0 no; nonzero yes", Saved},
    {key::Device,  L"IsHoldCardAfterEject",     &C::m_bIsHoldCardAfterEject,     0,     L"the card is held after eject: 0 no; nonzero yes", Saved},
    {key::Device,  L"IDMustEjectCardAfterScan", &C::m_bIDMustEjectCardAfterScan, 0,     meaning::kIDMustEjectCardAfterScan, Saved},
    {key::Device,  L"ChangeBySPDB",             &C::m_bChangeBySPDB,             0,     meaning::kChangeBySPDB, Saved},
    {key::Device,  L"SavingGetImagePathTime",   &C::m_dwSavingGetImagePathTime,  5,     meaning::kSavingGetImagePathTime, Saved},
    {key::Comm,    L"MachineType",              &C::m_dwMachineType,             0,     L"machine type, as the device's driver numbers it", Saved},
    {key::Control, L"PowerOffRecover",          &C::m_bPowerOffRecover,          0,     L"recovery after a power loss: 0 no; nonzero yes", Saved},
    {key::Device,  L"IsChangeNoToNO",           &C::m_bIsChangeNoToNO,           0,     meaning::kIsChangeNoToNO, Saved},
    {key::Control, L"UseNewFormatCfg",          &C::m_bUseNewFormatCfg,          0,     meaning::kUseNewFormatCfg, Saved},
    {key::Control, L"PadCharHex",               &C::m_strPadCharHex,             L"20", meaning::kPadCharHex, Saved},
    {key::Control, L"Track1Format",             &C::m_strTrack1Format,           L"",   meaning::kTrack1Format, Saved},
    {key::Control, L"Track2Format",             &C::m_strTrack2Format,           L"",   meaning::kTrack2Format, Saved},
    {key::Control, L"Track3Format",             &C::m_strTrack3Format,           L"",   meaning::kTrack3Format, Saved},
    {key::Control, L"ChipFormat",               &C::m_strChipFormat,             L"",   meaning::kChipFormat, Saved},
    {key::Control, L"FrontImageFormat",         &C::m_strFrontImageFormat,       L"",   meaning::kFrontImageFormat, Saved},
    {key::Control, L"BackImageFormat",          &C::m_strBackImageFormat,        L"",   meaning::kBackImageFormat, Saved},
    {key::Control, L"TrackWMFormat",            &C::m_strTrackWMFormat,          L"",   meaning::kTrackWMFormat, Saved},
    {key::Control, L"IDTypeDesc",               &C::m_strIDTypeDesc,             L"",   meaning::kIDTypeDesc, Saved},
    {key::Control, L"FIDTypeDesc",              &C::m_strFIDTypeDesc,            L"",   meaning::kFIDTypeDesc, Saved},
    {key::Control, L"ReadTracks",               &C::m_dwReadTracks,              7,     meaning::kReadTracks, Saved},
    {key::Control, L"Tracks2Unicode",           &C::m_bTracks2Unicode,           0,     meaning::kTracks2Unicode, Saved},
    {key::Control, L"IsSupRetain",              &C::m_bIsSupRetain,              0,     meaning::kIsSupRetain, Saved},
    {key::Control, L"SexFormat",                &C::m_dwSexFormat,               0,     meaning::kSexFormat, Saved},
    {key::Control, L"MustEjectAfterScanTime",   &C::m_dwMustEjectAfterScanTime,  30,    meaning::kMustEjectAfterScanTime, Saved},
    {key::Device,  L"dwWidthOfFrontBack",       &C::m_dwWidthOfFrontBack,        1011,  meaning::kWidthOfFrontBack, Saved},
    {key::Device,  L"dwHightOfFrontBack",       &C::m_dwHightOfFrontBack,        638,   meaning::kHeightOfFrontBack, Saved},
    {key::Device,  L"IsSaveNationCompleInfo",   &C::m_bIsSaveNationCompleInfo,   0,     meaning::kIsSaveNationCompleInfo, Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpIDCID15RegInfo, CIDCRegInfo, kSettings)
