#pragma once

#include "wqspcfg/parts/serial/SerialRecord.h"

// The black list of banknote serial numbers.
struct WQSPCFG_API tagBillBLRegInfo : wqspcfg::SerialRecord
{
    tagBillBLRegInfo();
    // Reads every value, each with its default where it is missing. False when the key is not open; everything is
    // default then.
    bool Load(HKEY hKey);
    // Writes the values that differ from what Load would give. False when any could not be written.
    bool Save(HKEY hKey) const;

    DWORD dwUseExternalBL{};
    CString szBlackListPath;
    CString szBlackListType;
    CString szComChr;
};
