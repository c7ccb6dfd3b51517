// Texts that models of several device classes share.
#pragma once

namespace wqspcfg::meaning {

inline constexpr wchar_t kNotDocumented[] = L"not documented";
inline constexpr wchar_t kPort[] = L"serial port number";
inline constexpr wchar_t kBaudRate[] = L"serial speed in baud";
inline constexpr wchar_t kPowerOnOption[] =
    L"card in the reader at initialisation: 0 eject; 1 retain; 2 back to the read position; 3 leave";
inline constexpr wchar_t kCloseOption[] = L"card in the reader when the SP closes: 0 eject; 1 retain; 2 leave";
// Read only: no card device saves what is configured for a power loss.
inline constexpr wchar_t kPowerOffOption[] = L"card in the reader at power loss: 0 leave; 1 eject; 2 retain";
inline constexpr wchar_t kSkimOfInsertCard[] = L"skim option when a card is inserted";
inline constexpr wchar_t kMediaLatched[] = L"support the WFS_IDC_MEDIALATCHED status: 0 no; nonzero yes";
inline constexpr wchar_t kScanBeepFile[] = L"sound file played when data is scanned; empty plays nothing";

} // namespace wqspcfg::meaning
