// One card unit (bin) of a card dispenser: the XFS card unit and what this system adds to it.
#pragma once

#include "wqspcfg/platform/base/Export.h"
#include "wqspcfg/platform/base/WinTypes.h"
#include "wqspcfg/platform/xfs/XfsCrd.h"

#pragma pack(push, 1)

// An XFS card unit that can be handed to XFS structures without copying: the extension fields lie behind it. The record
// owns its two narrow strings and deep-copies them; moving it moves the buffers. The hopper's buffer is released by
// SetHopper only, never by the destructor or by assignment: code that holds the pointer relies on it.
struct WQSPCFG_API tagCardUnitEx : _wfs_crd_cardunit
{
    ULONG ulMaxCount = 0;
    ULONG ulMinCount = 0;
    LPSTR lpszHopper = nullptr; // or null

    tagCardUnitEx() noexcept : _wfs_crd_cardunit{} {}
    tagCardUnitEx(const tagCardUnitEx& other);
    tagCardUnitEx(tagCardUnitEx&& other) noexcept;
    tagCardUnitEx& operator=(const tagCardUnitEx& other);
    tagCardUnitEx& operator=(tagCardUnitEx&& other) noexcept;
    ~tagCardUnitEx();

    // Null gives a null string; anything else is copied.
    void SetCardName(const char* lpszName);
    void SetHopper(const char* lpszName);

    bool operator==(const tagCardUnitEx& other) const noexcept;

    operator _wfs_crd_cardunit*() noexcept { return this; }
};

#pragma pack(pop)

static_assert(sizeof(tagCardUnitEx) == 34 + 2 * sizeof(LPSTR)); // 42 where a pointer has 4 bytes
static_assert(alignof(tagCardUnitEx) == 1);
