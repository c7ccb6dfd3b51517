#pragma once

#include "wqspcfg/parts/serial/SerialField.h"
#include "wqspcfg/platform/base/Export.h"

// The black list of banknote serial numbers.
struct WQSPCFG_API tagBillBLRegInfo
{
    tagBillBLRegInfo();
    // Reads every value, each with its default where it is missing. False when the key is not open; everything is
    // default then.
    bool Load(HKEY hKey);
    // Writes every value. False when any could not be written.
    bool Save(HKEY hKey) const;

    DWORD dwUseExternalBL;
    CString szBlackListPath;
    CString szBlackListType;
    CString szComChr;
};

namespace wqspcfg {

// clang-format off
inline constexpr auto kBillBLFields = [] {
    using R = tagBillBLRegInfo;
    using F = SerialField<R>;
    return std::to_array<F>({
        F{L"dwUseExternalBL", &R::dwUseExternalBL, 0, L"black list of serial numbers: 0 none; 1 the internal file; above 1 an external file"},
        F{L"szBlackListPath", &R::szBlackListPath, L"", L"path of the black-list file"},
        F{L"szBlackListType", &R::szBlackListType, L"", L"type of the black list"},
        F{L"szComChr", &R::szComChr, L"*", L"wildcard character in the black list"},
    });
}();
// clang-format on

} // namespace wqspcfg
