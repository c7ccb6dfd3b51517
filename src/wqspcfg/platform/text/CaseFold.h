// Upper case and comparison of names as the Windows registry does it: character by character, without a language.
#pragma once

#include "wqspcfg/platform/base/Export.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace wqspcfg {

namespace detail {
WQSPCFG_API wchar_t UpCaseNonAscii(wchar_t ch) noexcept;
}

inline wchar_t UpCase(wchar_t ch) noexcept
{
    if (ch >= L'a' && ch <= L'z') {
        return static_cast<wchar_t>(ch - (L'a' - L'A'));
    }
    return ch < 0x80 ? ch : detail::UpCaseNonAscii(ch);
}

WQSPCFG_API std::wstring UpCase(std::wstring_view text);

// Negative, zero or positive, in the order of the upper-cased UTF-16 code units on every platform.
WQSPCFG_API int CompareNoCase(std::wstring_view left, std::wstring_view right) noexcept;
WQSPCFG_API bool EqualNoCase(std::wstring_view left, std::wstring_view right) noexcept;
// Equal for names that compare equal.
WQSPCFG_API std::size_t HashNoCase(std::wstring_view text) noexcept;

// For ordered and unordered containers; views find without a copy.
struct LessNoCase
{
    using is_transparent = void;
    bool operator()(std::wstring_view left, std::wstring_view right) const noexcept
    {
        return CompareNoCase(left, right) < 0;
    }
};

struct EqualToNoCase
{
    using is_transparent = void;
    bool operator()(std::wstring_view left, std::wstring_view right) const noexcept { return EqualNoCase(left, right); }
};

struct HasherNoCase
{
    using is_transparent = void;
    std::size_t operator()(std::wstring_view text) const noexcept { return HashNoCase(text); }
};

} // namespace wqspcfg
