// The ports of a sensors and indicators unit by the names that the registry uses for them, each at its XFS index; null
// where a port is not configured.
#pragma once

#include "wqspcfg/platform/xfs/XfsSiu.h"

namespace wqspcfg::siu {

// clang-format off
inline constexpr const wchar_t* kSensorNames[WFS_SIU_SENSORS_SIZE] = {
    L"OPERATORSWITCH", L"TAMPER", L"INTTAMPER", L"SEISMIC", L"HEAT", L"PROXIMITY", L"AMBLIGHT", L"ENHANCEDAUDIO",
    nullptr, nullptr, L"CALL_BUTTON", L"HANDSETSENSOR"};
inline constexpr const wchar_t* kDoorNames[WFS_SIU_DOORS_SIZE] = {L"CABINET", L"SAFE", L"VANDALSHIELD"};
inline constexpr const wchar_t* kIndicatorNames[WFS_SIU_INDICATORS_SIZE] = {
    L"OPENCLOSE", L"FASCIALIGHT", L"AUDIO", L"HEATING", L"INDICATOR_4", L"INDICATOR_5", L"REARSCREEN", L"INDICATOR_7",
    L"INDICATOR_8", L"INDICATOR_9", L"INDICATOR_10", L"INDICATOR_11", L"INDICATOR_12", L"INDICATOR_13", L"FRONTSCREEN",
    L"INDICATOR_15"};
inline constexpr const wchar_t* kAuxiliaryNames[WFS_SIU_AUXILIARIES_SIZE] = {
    L"VOLUME", L"UPS", L"MONITOR", L"ALARM", L"ENHANCEDAUDIOCONTROL"};
inline constexpr const wchar_t* kGuidLightNames[WFS_SIU_GUIDLIGHTS_SIZE] = {
    L"CARDUNIT", L"PINPAD", L"NOTESDISPENSER", L"COINDISPENSER", L"RECEIPTPRINTER", L"PASSBOOKPRINTER",
    L"ENVDEPOSITORY", L"CHEQUEUNIT", L"BILLACCEPTOR", L"ENVDISPENSER", L"DOCUMENTPRINTER", L"COINACCEPTOR", L"SCANNER",
    L"WFS_GUIDLIGHT_13", L"WFS_GUIDLIGHT_14", L"WFS_GUIDLIGHT_15"};
// clang-format on

// Indices of indicators that the published standard leaves free.
inline constexpr std::size_t kRearScreen = 6;
inline constexpr std::size_t kFrontScreen = 14;

} // namespace wqspcfg::siu
