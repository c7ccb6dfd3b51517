// A wide string with the framework's interface, kept in a std::wstring.
//
// Positions and lengths are int, counted in wchar_t; a position that is not found is -1. A null pointer counts as
// empty text. Text given with its length may hold NUL characters; they survive everything but a conversion to LPCWSTR.
#pragma once

#include "wqspcfg/platform/base/Export.h"
#include "wqspcfg/platform/base/WinTypes.h"
#include "wqspcfg/platform/format/Format.h"
#include "wqspcfg/platform/framework/InvalidArgException.h"

#include <compare>
#include <concepts>
#include <functional>
#include <string>
#include <string_view>
#include <utility>

class CString
{
  public:
    CString() noexcept = default;
    WQSPCFG_API CString(LPCWSTR text);
    CString(std::wstring_view text) : m_text(text) {}
    CString(const std::wstring& text) : m_text(text) {}
    CString(std::wstring&& text) noexcept : m_text(std::move(text)) {}
    explicit CString(wchar_t ch, int repeat = 1) : m_text(Count(repeat), ch) {}

    // Valid until the string changes.
    operator LPCWSTR() const noexcept { return m_text.c_str(); }
    LPCWSTR GetString() const noexcept { return m_text.c_str(); }
    const std::wstring& Std() const noexcept { return m_text; }
    std::wstring_view View() const noexcept { return m_text; }

    int GetLength() const noexcept { return static_cast<int>(m_text.size()); }
    bool IsEmpty() const noexcept { return m_text.empty(); }
    void Empty() noexcept { m_text = std::wstring(); }

    // The index may equal the length, which gives the terminating NUL; any other throws CInvalidArgException.
    wchar_t GetAt(int index) const
    {
        if (index < 0 || static_cast<std::size_t>(index) > m_text.size()) {
            throw CInvalidArgException();
        }
        return m_text[static_cast<std::size_t>(index)];
    }
    // A template, or every index but an int would be ambiguous with a subscript of the LPCWSTR.
    template <std::integral Index>
    wchar_t operator[](Index index) const
    {
        if (!std::in_range<int>(index)) {
            throw CInvalidArgException();
        }
        return GetAt(static_cast<int>(index));
    }
    // The index must be below the length.
    WQSPCFG_API void SetAt(int index, wchar_t ch);

    CString& operator+=(const CString& text)
    {
        m_text += text.m_text;
        return *this;
    }
    CString& operator+=(LPCWSTR text)
    {
        m_text += View(text);
        return *this;
    }
    CString& operator+=(wchar_t ch)
    {
        m_text += ch;
        return *this;
    }

    // Counts and positions outside the text are cut to it.
    WQSPCFG_API CString Left(int count) const;
    WQSPCFG_API CString Mid(int first) const;
    WQSPCFG_API CString Mid(int first, int count) const;
    WQSPCFG_API CString Right(int count) const;

    WQSPCFG_API int Find(wchar_t ch, int start = 0) const noexcept;
    WQSPCFG_API int Find(LPCWSTR text, int start = 0) const noexcept;
    WQSPCFG_API int ReverseFind(wchar_t ch) const noexcept;

    // Less than 0, 0 or greater than 0. Without regard to case as registry names compare.
    WQSPCFG_API int Compare(LPCWSTR text) const noexcept;
    WQSPCFG_API int CompareNoCase(LPCWSTR text) const noexcept;

    // Upper case by the same rule; lower case as the C library's locale has it, in the "C" locale that of ASCII
    // letters.
    WQSPCFG_API CString& MakeUpper();
    WQSPCFG_API CString& MakeLower();
    // Blanks are space, tab, line feed, vertical tab, form feed and carriage return.
    WQSPCFG_API CString& Trim();
    WQSPCFG_API CString& TrimLeft();
    WQSPCFG_API CString& TrimRight();
    WQSPCFG_API CString& Trim(wchar_t ch);
    // Each returns how many occurrences it replaced or removed.
    WQSPCFG_API int Replace(wchar_t from, wchar_t to);
    WQSPCFG_API int Replace(LPCWSTR from, LPCWSTR to);
    WQSPCFG_API int Remove(wchar_t ch);

    // The formats of platform/format/Format.h. An argument may be this string itself.
    template <wqspcfg::Formattable... Args>
    void Format(LPCWSTR format, const Args&... args)
    {
        m_text = wqspcfg::FormatString(format, args...);
    }
    template <wqspcfg::Formattable... Args>
    void AppendFormat(LPCWSTR format, const Args&... args)
    {
        m_text += wqspcfg::FormatString(format, args...);
    }

    friend CString operator+(const CString& a, const CString& b) { return Join(a.m_text, b.m_text); }
    friend CString operator+(const CString& a, LPCWSTR b) { return Join(a.m_text, View(b)); }
    friend CString operator+(LPCWSTR a, const CString& b) { return Join(View(a), b.m_text); }
    friend CString operator+(const CString& a, wchar_t b) { return Join(a.m_text, {&b, 1}); }
    friend CString operator+(wchar_t a, const CString& b) { return Join({&a, 1}, b.m_text); }

    friend bool operator==(const CString& a, const CString& b) noexcept { return a.m_text == b.m_text; }
    friend bool operator==(const CString& a, LPCWSTR b) noexcept { return a.m_text == View(b); }
    friend std::strong_ordering operator<=>(const CString& a, const CString& b) noexcept
    {
        return a.m_text <=> b.m_text;
    }
    friend std::strong_ordering operator<=>(const CString& a, LPCWSTR b) noexcept { return a.View() <=> View(b); }

  private:
    static std::wstring_view View(LPCWSTR text) noexcept
    {
        return text != nullptr ? std::wstring_view(text) : std::wstring_view();
    }
    static std::size_t Count(int count) noexcept { return count > 0 ? static_cast<std::size_t>(count) : 0; }
    static CString Join(std::wstring_view a, std::wstring_view b)
    {
        std::wstring text;
        text.reserve(a.size() + b.size());
        return CString(std::move(text.append(a).append(b)));
    }

    std::wstring m_text;
};

template <>
struct std::hash<CString>
{
    std::size_t operator()(const CString& text) const noexcept { return std::hash<std::wstring>()(text.Std()); }
};

inline wqspcfg::FormatArg::FormatArg(const CString& text) noexcept : FormatArg(text.Std()) {}
