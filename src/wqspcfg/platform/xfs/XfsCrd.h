// CEN/XFS card dispenser: the structure that this system fills. A service provider that includes the published XFS
// headers includes them before this one, which then takes their definition and checks that it is the same.
#pragma once

#include "wqspcfg/platform/base/WinTypes.h"

#include <cstddef>

#ifndef __INC_XFSCRD__H

#pragma pack(push, 1)

typedef struct _wfs_crd_cardunit
{
    USHORT usNumber;      // logical number; 0: no unit
    LPSTR lpszCardName;   // or null
    USHORT usType;        // supply or retain bin
    ULONG ulInitialCount; // at the last replenishment
    ULONG ulCount;
    ULONG ulRetainCount; // cards retained into this unit
    ULONG ulThreshold;   // for the threshold event
    USHORT usStatus;
    BOOL bHardwareSensor; // the unit has a hardware fill sensor
} WFSCRDCARDUNIT, *LPWFSCRDCARDUNIT;

#pragma pack(pop)

#endif

static_assert(sizeof(_wfs_crd_cardunit) == 26 + sizeof(LPSTR));
static_assert(offsetof(_wfs_crd_cardunit, lpszCardName) == 2);
static_assert(offsetof(_wfs_crd_cardunit, usType) == 2 + sizeof(LPSTR));
static_assert(offsetof(_wfs_crd_cardunit, ulInitialCount) == 4 + sizeof(LPSTR));
static_assert(offsetof(_wfs_crd_cardunit, ulCount) == 8 + sizeof(LPSTR));
static_assert(offsetof(_wfs_crd_cardunit, ulRetainCount) == 12 + sizeof(LPSTR));
static_assert(offsetof(_wfs_crd_cardunit, ulThreshold) == 16 + sizeof(LPSTR));
static_assert(offsetof(_wfs_crd_cardunit, usStatus) == 20 + sizeof(LPSTR));
static_assert(offsetof(_wfs_crd_cardunit, bHardwareSensor) == 22 + sizeof(LPSTR));
