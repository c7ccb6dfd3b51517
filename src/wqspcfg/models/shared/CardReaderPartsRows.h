// Settings that card readers share.
#pragma once

#include "wqspcfg/core/settings/Setting.h"
#include "wqspcfg/models/shared/CardReaderParts.h"
#include "wqspcfg/parts/meanings/IDC.h"
#include "wqspcfg/parts/meanings/Shared.h"

#include <array>

namespace wqspcfg {

// clang-format off
inline constexpr Setting kDcReaderRows[] = {
    {key::Comm, L"BaudRate", &DcReader::m_dwBaudRate, 9600, meaning::kBaudRate, Saved},
    {key::Comm, L"Port", &DcReader::m_dwPort, 1,
     meaning::kPort, Saved, RefersTo(Reference::SerialPort)},
    {key::Device, L"CpuCardType", &DcReader::m_dwCpuCardType, 0, meaning::kCpuCardType, Saved},
    {key::Below(L"TimeSet"), L"TimesOfGetStIfSwitchLed", &DcReader::m_dwTimesOfGetStIfSwitchLed, 1,
     meaning::kTimesOfGetStIfSwitchLed, Saved},
};

template <class Base, class C = CombinedReader<Base>>
inline constexpr Setting kCombinedReaderRows[] = {
    {key::Device, L"CPUCardLogicName", &C::m_strCPUCardLogicName, L"",
     meaning::kCPUCardLogicName, Saved, RefersTo(Reference::LogicalService)},
    {key::Device, L"SimReader", &C::m_strSimReader, L"", meaning::kSimReader, Saved},
    {key::Device, L"IDCardLogicName", &C::m_strIDCardLogicName, L"",
     meaning::kIDCardLogicName, Saved, RefersTo(Reference::LogicalService)},
    {key::Device, L"CertRead", &C::m_strCertRead, L"", meaning::kCertRead, Saved},
    {key::Device, L"MagCardLogicName", &C::m_strMagCardLogicName, L"",
     L"logical name of the magnetic-stripe card service", Saved, RefersTo(Reference::LogicalService)},
    {key::Device, L"CardReader", &C::m_strCardReader, L"", L"name of the reader for magnetic-stripe cards", Saved},
    {key::Device, L"ICCardLogicName", &C::m_strICCardLogicName, L"",
     L"logical name of the chip card service", Saved, RefersTo(Reference::LogicalService)},
    {key::Device, L"ICCardReader", &C::m_strICCardReader, L"", L"name of the reader for chip cards", Saved},
};
// clang-format on

// The formats are in the key `key`.
consteval auto FormatRows(Key key)
{
    using C = FormattingReader;
    // clang-format off
    return std::array{
        Setting{key, L"Track1Format", &C::m_strTrack1Format, L"", L"format of the data returned as track 1", Saved},
        Setting{key, L"Track2Format", &C::m_strTrack2Format, L"", L"format of the data returned as track 2", Saved},
        Setting{key, L"Track3Format", &C::m_strTrack3Format, L"", L"format of the data returned as track 3", Saved},
        Setting{key, L"ChipFormat", &C::m_strChipFormat, L"", L"format of the data returned as chip data", Saved},
        Setting{key, L"FrontImageFormat", &C::m_strFrontImageFormat, L"",
                L"format of the data returned as the front image", Saved},
        Setting{key, L"BackImageFormat", &C::m_strBackImageFormat, L"",
                L"format of the data returned as the back image", Saved},
        Setting{key, L"TrackWMFormat", &C::m_strTrackWMFormat, L"",
                L"format of the data returned as the track WFS_IDC_TRACK_WM", Saved},
    };
    // clang-format on
}
inline constexpr auto kDriverFormatRows = FormatRows(key::Below(L"FormatData"));
inline constexpr auto kScannerFormatRows = FormatRows(key::Control);

inline constexpr Key kPicPath = key::Below(L"PicPath");

// clang-format off
inline constexpr Setting kIdentityCardReaderRows[] = {
    Group(Rows<kDriverFormatRows>),
    {kPicPath, L"HeadPicPath", &IdentityCardReader::m_strHeadPicPath, L"",
     L"path of the picture of the holder's head", Saved},
    {kPicPath, L"FrontPicPath", &IdentityCardReader::m_strFrontPicPath, L"",
     L"path of the picture of the card's front", Saved},
    {kPicPath, L"BackPicPath", &IdentityCardReader::m_strBackPicPath, L"",
     L"path of the picture of the card's back", Saved},
};

inline constexpr Setting kIdentityCardScannerRows[] = {
    {key::Control, L"UseNewFormatCfg", &IdentityCardScanner::m_bUseNewFormatCfg, 0,
     L"the new format configuration is used: 0 no; nonzero yes", Saved},
    {key::Control, L"PadCharHex", &IdentityCardScanner::m_strPadCharHex, L"20",
     L"padding character as a hexadecimal number", Saved},
    Group(Rows<kScannerFormatRows>),
    {key::Control, L"IDTypeDesc", &IdentityCardScanner::m_strIDTypeDesc, L"",
     L"description of the document type for identity cards", Saved},
    {key::Control, L"FIDTypeDesc", &IdentityCardScanner::m_strFIDTypeDesc, L"",
     L"description of the document type for foreigners' identity cards", Saved},
    {key::Control, L"ReadTracks", &IdentityCardScanner::m_dwReadTracks, 7, meaning::kReadTracks, Saved},
    {key::Control, L"Tracks2Unicode", &IdentityCardScanner::m_bTracks2Unicode, 0,
     L"track data are converted to Unicode: 0 no; nonzero yes", Saved},
    {key::Control, L"IsSupRetain", &IdentityCardScanner::m_bIsSupRetain, 0, meaning::kIsSupRetain, Saved},
    {key::Control, L"SexFormat", &IdentityCardScanner::m_dwSexFormat, 0,
     L"format in which the holder's sex is returned", Saved},
    {key::Control, L"MustEjectAfterScanTime", &IdentityCardScanner::m_dwMustEjectAfterScanTime, 30,
     L"time in seconds after scanning until the card must be ejected", Saved},
};
// clang-format on

} // namespace wqspcfg
