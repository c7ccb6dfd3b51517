#pragma once

#include "wqspcfg/platform/base/Export.h"
#include "wqspcfg/platform/base/WinTypes.h"
#include "wqspcfg/platform/framework/Array.h"
#include "wqspcfg/platform/framework/String.h"

#include <optional>
#include <string_view>

class CStringUtility
{
  public:
    // Replaces `out` by the pieces between the separators, as they are (not trimmed, empty ones included), and returns
    // their number: one more than there are separators, but none for an empty text. `out` must not hold `text`.
    WQSPCFG_API static int SplitString(CStringArray& out, const CString& text, wchar_t sep);
    WQSPCFG_API static CString CombineString(const CStringArray& parts, wchar_t sep);

    // The whole text must be a number of that radix (2 to 36): blanks, a sign, digits (after "0x" too for radix 16),
    // blanks. Otherwise, and for a number that an int cannot hold, it returns false and leaves `out` as it was.
    WQSPCFG_API static bool atoi(int& out, const CString& text, unsigned char radix);
};

namespace wqspcfg {

// The decimal number at the beginning of the text, after blanks and a sign; 0 where there is none. A number too large
// becomes the nearest that fits.
WQSPCFG_API LONG ParseDecimal(std::wstring_view text) noexcept;

// The number that the whole text is: digits of that radix (2 to 36) alone. None where it has anything else, or where a
// DWORD cannot hold it.
WQSPCFG_API std::optional<DWORD> ParseDword(std::wstring_view digits, unsigned radix = 10) noexcept;

} // namespace wqspcfg
