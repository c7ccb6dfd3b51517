#pragma once

#include "wqspcfg/parts/serial/SerialRecord.h"

// The file of warnings about suspicious notes that is written for the application.
struct WQSPCFG_API tagBillFAIRegInfo : wqspcfg::SerialRecord
{
    tagBillFAIRegInfo();
    // Reads every value, each with its default where it is missing. False when the key is not open; everything is
    // default then.
    bool Load(HKEY hKey);
    // Writes the values that differ from what Load would give. False when any could not be written.
    bool Save(HKEY hKey) const;

    DWORD dwRecordFAI{};
    DWORD dwFAISaveMonth{};
    DWORD dwDelExistFAI{};
    DWORD dwOneRow{};
    DWORD dwFAIDeleted{};
    CString szFAIPath;
    CString szFAIName;
    CString szBackUpFAIName;
    CString szFAIPostfix;
    CString szFAIType;
    CString szFAIMode;
    CString szFAIApRegQuery;
    CString szFAIApRegSet;
};
