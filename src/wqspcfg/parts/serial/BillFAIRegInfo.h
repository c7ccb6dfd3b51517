#pragma once

#include "wqspcfg/parts/serial/SerialField.h"
#include "wqspcfg/platform/base/Export.h"

// The file of warnings about suspicious notes that is written for the application.
struct WQSPCFG_API tagBillFAIRegInfo
{
    tagBillFAIRegInfo();
    // Reads every value, each with its default where it is missing. False when the key is not open; everything is
    // default then.
    bool Load(HKEY hKey);
    // Writes every value. False when any could not be written.
    bool Save(HKEY hKey) const;

    DWORD dwRecordFAI;
    DWORD dwFAISaveMonth;
    DWORD dwDelExistFAI;
    DWORD dwOneRow;
    DWORD dwFAIDeleted;
    CString szFAIPath;
    CString szFAIName;
    CString szBackUpFAIName;
    CString szFAIPostfix;
    CString szFAIType;
    CString szFAIMode;
    CString szFAIApRegQuery;
    CString szFAIApRegSet;
};

namespace wqspcfg {

// clang-format off
inline constexpr auto kBillFAIFields = [] {
    using R = tagBillFAIRegInfo;
    using F = SerialField<R>;
    return std::to_array<F>({
        F{L"dwRecordFAI", &R::dwRecordFAI, 0, L"warning files are recorded: 0 no; nonzero yes"},
        F{L"dwFAISaveMonth", &R::dwFAISaveMonth, 3, L"how long warning files are kept, in months"},
        F{L"dwDelExistFAI", &R::dwDelExistFAI, 0, L"a warning file that exists already is deleted: 0 no; nonzero yes"},
        F{L"dwOneRow", &R::dwOneRow, 0, L"a warning file holds one row: 0 no; nonzero yes"},
        F{L"dwFAIDeleted", &R::dwFAIDeleted, 0, L"warning files are deleted: 0 no; nonzero yes"},
        F{L"szFAIPath", &R::szFAIPath, L"", L"directory of the warning files"},
        F{L"szFAIName", &R::szFAIName, L"", L"name of the warning file"},
        F{L"szBackUpFAIName", &R::szBackUpFAIName, L"", L"name of the backup of the warning file"},
        F{L"szFAIPostfix", &R::szFAIPostfix, L"", L"extension of the warning file"},
        F{L"szFAIType", &R::szFAIType, L"", L"type of the warning file"},
        F{L"szFAIMode", &R::szFAIMode, L"", L"mode of the warning file"},
        F{L"szFAIApRegQuery", &R::szFAIApRegQuery, L"", L"registry value in which the application queries the warning file"},
        F{L"szFAIApRegSet", &R::szFAIApRegSet, L"", L"registry value in which the application sets the warning file"},
    });
}();
// clang-format on

} // namespace wqspcfg
