// Meanings that recur in many device models, written once.
#pragma once

namespace wqspcfg::meaning {

inline constexpr wchar_t kPort[] = L"serial port number";
inline constexpr wchar_t kBaudRate[] = L"serial speed in baud";
inline constexpr wchar_t kPowerOnOption[] =
    L"card in the reader at initialisation: 0 eject; 1 retain; 2 back to the read position; 3 leave";
inline constexpr wchar_t kCloseOption[] = L"card in the reader when the SP closes: 0 eject; 1 retain; 2 leave";
inline constexpr wchar_t kPowerOffOption[] = L"card in the reader at power loss: 0 leave; 1 eject; 2 retain";
inline constexpr wchar_t kDispenseBin1[] = L"card-unit number of physical bin 1";
inline constexpr wchar_t kDispenseBin2[] = L"card-unit number of physical bin 2";
inline constexpr wchar_t kRetainBin[] = L"card-unit number of the retain bin";
inline constexpr wchar_t kMaxSupplyCard[] = L"capacity of a supply bin, in cards";
inline constexpr wchar_t kSupplyBinLow[] = L"count at which a supply bin is nearly empty";
inline constexpr wchar_t kRetainBinStatus[] =
    L"retain-bin status policy: 0 the XFS standard; 1 the agricultural bank's super-counter interface";
inline constexpr wchar_t kMediaLatched[] = L"support the WFS_IDC_MEDIALATCHED status: 0 no; nonzero yes";
inline constexpr wchar_t kLogicalNameOfIDCReader[] =
    L"logical name of the card reader that the device opens through the XFS API; empty none";

} // namespace wqspcfg::meaning
