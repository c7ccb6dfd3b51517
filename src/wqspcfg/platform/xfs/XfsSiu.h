// CEN/XFS sensors and indicators unit: the capabilities that this system fills, with their indices and values. A
// service provider that includes the published XFS headers includes them before this one, which then takes their
// definitions and checks that the structure is the same.
//
// The members are those up to release 3.20 (which added bAntiFraudModule); there are 32 guidance lights.
#pragma once

#include "wqspcfg/platform/base/WinTypes.h"

#include <cstddef>

#ifndef __INC_XFSSIU__H

inline constexpr std::size_t WFS_SIU_SENSORS_SIZE = 32;
inline constexpr std::size_t WFS_SIU_DOORS_SIZE = 16;
inline constexpr std::size_t WFS_SIU_INDICATORS_SIZE = 16;
inline constexpr std::size_t WFS_SIU_AUXILIARIES_SIZE = 16;
inline constexpr std::size_t WFS_SIU_GUIDLIGHTS_SIZE = 32;

#pragma pack(push, 1)

typedef struct _wfs_siu_caps
{
    WORD wClass;
    WORD fwType;
    WORD fwSensors[WFS_SIU_SENSORS_SIZE];
    WORD fwDoors[WFS_SIU_DOORS_SIZE];
    WORD fwIndicators[WFS_SIU_INDICATORS_SIZE];
    WORD fwAuxiliaries[WFS_SIU_AUXILIARIES_SIZE];
    WORD fwGuidLights[WFS_SIU_GUIDLIGHTS_SIZE];
    LPSTR lpszExtra;
    BOOL bPowerSaveControl;
    WORD fwAutoStartupMode;
    BOOL bAntiFraudModule;
} WFSSIUCAPS, *LPWFSSIUCAPS;

#pragma pack(pop)

// Indices of fwSensors
inline constexpr std::size_t WFS_SIU_OPERATORSWITCH = 0;
inline constexpr std::size_t WFS_SIU_TAMPER = 1;
inline constexpr std::size_t WFS_SIU_INTTAMPER = 2;
inline constexpr std::size_t WFS_SIU_SEISMIC = 3;
inline constexpr std::size_t WFS_SIU_HEAT = 4;
inline constexpr std::size_t WFS_SIU_PROXIMITY = 5;
inline constexpr std::size_t WFS_SIU_AMBLIGHT = 6;
inline constexpr std::size_t WFS_SIU_ENHANCEDAUDIO = 7;
inline constexpr std::size_t WFS_SIU_BOOT_SWITCH = 8;
inline constexpr std::size_t WFS_SIU_CONSUMER_DISPLAY = 9;
inline constexpr std::size_t WFS_SIU_OPERATOR_CALL_BUTTON = 10;
inline constexpr std::size_t WFS_SIU_HANDSETSENSOR = 11;

// Indices of fwDoors
inline constexpr std::size_t WFS_SIU_CABINET = 0;
inline constexpr std::size_t WFS_SIU_SAFE = 1;
inline constexpr std::size_t WFS_SIU_VANDALSHIELD = 2;

// Indices of fwIndicators
inline constexpr std::size_t WFS_SIU_OPENCLOSE = 0;
inline constexpr std::size_t WFS_SIU_FASCIALIGHT = 1;
inline constexpr std::size_t WFS_SIU_AUDIO = 2;
inline constexpr std::size_t WFS_SIU_HEATING = 3;

// Indices of fwAuxiliaries
inline constexpr std::size_t WFS_SIU_VOLUME = 0;
inline constexpr std::size_t WFS_SIU_UPS = 1;
inline constexpr std::size_t WFS_SIU_REMOTE_STATUS_MONITOR = 2;
inline constexpr std::size_t WFS_SIU_AUDIBLE_ALARM = 3;
inline constexpr std::size_t WFS_SIU_ENHANCEDAUDIOCONTROL = 4;

// Indices of fwGuidLights
inline constexpr std::size_t WFS_SIU_CARDUNIT = 0;
inline constexpr std::size_t WFS_SIU_PINPAD = 1;
inline constexpr std::size_t WFS_SIU_NOTESDISPENSER = 2;
inline constexpr std::size_t WFS_SIU_COINDISPENSER = 3;
inline constexpr std::size_t WFS_SIU_RECEIPTPRINTER = 4;
inline constexpr std::size_t WFS_SIU_PASSBOOKPRINTER = 5;
inline constexpr std::size_t WFS_SIU_ENVDEPOSITORY = 6;
inline constexpr std::size_t WFS_SIU_CHEQUEUNIT = 7;
inline constexpr std::size_t WFS_SIU_BILLACCEPTOR = 8;
inline constexpr std::size_t WFS_SIU_ENVDISPENSER = 9;
inline constexpr std::size_t WFS_SIU_DOCUMENTPRINTER = 10;
inline constexpr std::size_t WFS_SIU_COINACCEPTOR = 11;
inline constexpr std::size_t WFS_SIU_SCANNER = 12;

inline constexpr WORD WFS_SIU_NOT_AVAILABLE = 0x0000;
inline constexpr WORD WFS_SIU_AVAILABLE = 0x0001;

// The operator switch
inline constexpr WORD WFS_SIU_RUN = 0x0001;
inline constexpr WORD WFS_SIU_MAINTENANCE = 0x0002;
inline constexpr WORD WFS_SIU_SUPERVISOR = 0x0004;

// Doors
inline constexpr WORD WFS_SIU_CLOSED = 0x0001;
inline constexpr WORD WFS_SIU_OPEN = 0x0002;
inline constexpr WORD WFS_SIU_LOCKED = 0x0004;
inline constexpr WORD WFS_SIU_BOLTED = 0x0008;
inline constexpr WORD WFS_SIU_SERVICE = 0x0010;
inline constexpr WORD WFS_SIU_KEYBOARD = 0x0020;

// The uninterruptible power supply
inline constexpr WORD WFS_SIU_LOW = 0x0002;
inline constexpr WORD WFS_SIU_ENGAGED = 0x0004;
inline constexpr WORD WFS_SIU_POWERING = 0x0008;
inline constexpr WORD WFS_SIU_RECOVERED = 0x0010;

#endif

static_assert(sizeof(_wfs_siu_caps) == 238 + sizeof(LPSTR));
static_assert(offsetof(_wfs_siu_caps, fwSensors) == 4);
static_assert(offsetof(_wfs_siu_caps, fwDoors) == 68);
static_assert(offsetof(_wfs_siu_caps, fwIndicators) == 100);
static_assert(offsetof(_wfs_siu_caps, fwAuxiliaries) == 132);
static_assert(offsetof(_wfs_siu_caps, fwGuidLights) == 164);
static_assert(offsetof(_wfs_siu_caps, lpszExtra) == 228);
static_assert(offsetof(_wfs_siu_caps, bPowerSaveControl) == 228 + sizeof(LPSTR));
static_assert(offsetof(_wfs_siu_caps, fwAutoStartupMode) == 232 + sizeof(LPSTR));
static_assert(offsetof(_wfs_siu_caps, bAntiFraudModule) == 234 + sizeof(LPSTR));
