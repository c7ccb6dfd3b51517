// What cash devices hold of each of their cassette slots or coin hoppers.
#pragma once

#include "wqspcfg/platform/base/WinTypes.h"

struct tagCassetteSlot
{
    // High word the group (0x0004 group 4), low word the use: 0x0030 recycle, 0x0010 dispense only, 0x0020 deposit
    // only, 0x0040 mixed deposit.
    DWORD dwType;
    DWORD dwCasFull;      // distance to full, a code
    DWORD dwCasNearEmpty; // distance to nearly empty, a code
};

// Thresholds in coins.
struct tagCoinHopper
{
    DWORD dwCasFull;
    DWORD dwCasNearFull;
    DWORD dwCasEmpty;
    DWORD dwCasNearEmpty;
};

struct tagCoinRecycleHopper : tagCoinHopper
{
    DWORD dwType; // 0x100 recycle for 1 yuan, 0x050 for 5 jiao, 0x010 for 1 jiao, 0x000 without a denomination
};
