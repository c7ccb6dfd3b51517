// CEN/XFS cash-in module: the structure that this system fills. A service provider that includes the published XFS
// headers includes them before this one, which then takes their definition and checks that it is the same.
#pragma once

#include "wqspcfg/platform/base/WinTypes.h"

#include <cstddef>

#ifndef __INC_XFSCIM__H

#pragma pack(push, 1)

typedef struct _wfs_cim_note_type
{
    USHORT usNoteID;
    CHAR cCurrencyID[3]; // ISO 4217, no terminator
    ULONG ulValues;      // the denomination
    USHORT usRelease;
    BOOL bConfigured;
} WFSCIMNOTETYPE, *LPWFSCIMNOTETYPE;

#pragma pack(pop)

#endif

static_assert(sizeof(_wfs_cim_note_type) == 15);
static_assert(offsetof(_wfs_cim_note_type, cCurrencyID) == 2);
static_assert(offsetof(_wfs_cim_note_type, ulValues) == 5);
static_assert(offsetof(_wfs_cim_note_type, usRelease) == 9);
static_assert(offsetof(_wfs_cim_note_type, bConfigured) == 11);
