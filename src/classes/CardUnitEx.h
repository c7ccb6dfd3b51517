// One card unit (bin) of a card dispenser: the XFS card unit and what this system adds to it.
#pragma once

#include "platform/base/Export.h"
#include "platform/base/WinTypes.h"
#include "platform/xfs/XfsCrd.h"

#include <cstddef>

#pragma pack(push, 1)

// The first nine fields are the XFS card unit, so that a unit can be handed to XFS structures without copying. The
// record owns its two narrow strings and deep-copies them. The hopper's buffer is released by SetHopper only, never by
// the destructor or by assignment: code that holds the pointer relies on it.
struct WQSPCFG_API tagCardUnitEx
{
    USHORT usNumber = 0;          // logical number; 0: no unit
    LPSTR lpszCardName = nullptr; // or null
    USHORT usType = 0;            // XFS unit type
    ULONG ulInitialCount = 0;     // at the last replenishment
    ULONG ulCount = 0;
    ULONG ulRetainCount = 0; // cards retained into this unit
    ULONG ulThreshold = 0;   // for the threshold event
    USHORT usStatus = 0;     // XFS unit status
    BOOL bHardwareSensor = 0;
    ULONG ulMaxCount = 0;
    ULONG ulMinCount = 0;
    LPSTR lpszHopper = nullptr; // or null

    tagCardUnitEx() = default;
    tagCardUnitEx(const tagCardUnitEx& other);
    tagCardUnitEx& operator=(const tagCardUnitEx& other);
    ~tagCardUnitEx();

    // Null gives a null string; anything else is copied.
    void SetCardName(const char* lpszName);
    void SetHopper(const char* lpszName);

    bool operator==(const tagCardUnitEx& other) const noexcept;

    // The record itself as the XFS card unit.
    operator _wfs_crd_cardunit&() noexcept { return *static_cast<_wfs_crd_cardunit*>(*this); }
    operator _wfs_crd_cardunit*() noexcept { return reinterpret_cast<_wfs_crd_cardunit*>(this); }
};

#pragma pack(pop)

static_assert(sizeof(tagCardUnitEx) == 34 + 2 * sizeof(void*));
static_assert(offsetof(tagCardUnitEx, lpszCardName) == offsetof(_wfs_crd_cardunit, lpszCardName));
static_assert(offsetof(tagCardUnitEx, bHardwareSensor) == offsetof(_wfs_crd_cardunit, bHardwareSensor));
static_assert(offsetof(tagCardUnitEx, ulMaxCount) == sizeof(_wfs_crd_cardunit));
