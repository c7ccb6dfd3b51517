// A type-safe printf for wide formats, with the Windows meaning of %s and %c (wide) on every platform.
//
// Conversions: d i u x X o c s S p %, with the flags - + space 0 #, width and precision (as numbers or *), and the
// length modifiers hh h l ll I I32 I64 j t z w L. An argument knows its type, so the length modifiers matter only
// where they narrow a number (hh, h, I32) or widen it (ll, I64):
//   - %d of a 32-bit unsigned prints as a signed 32-bit number, %u %x %o of a negative number print its 32 bits; a
//     64-bit argument prints whole. Narrower integers are promoted to int first.
//   - %s and %S take wide and narrow text alike (narrow text is in the platform's narrow encoding); a null pointer
//     prints "(null)". A precision cuts (it counts the bytes of narrow text), a width only pads.
//   - %c of 0 appends a NUL character.
// A conversion whose argument is of another kind prints that argument in its natural form; one without an argument,
// or unknown, appears as it stands. A width above 32767 counts as 32767. Nothing here depends on the locale.
#pragma once

#include "wqspcfg/platform/base/Export.h"

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>

class CString;

namespace wqspcfg {

// One argument: a number, or a reference to text that must outlive the call.
class FormatArg
{
  public:
    enum class Kind : std::uint8_t
    {
        Signed,
        Unsigned,
        Character,
        Wide,
        Narrow,
        Pointer,
    };

    template <std::integral T>
    constexpr FormatArg(T value) noexcept
        : m_number(static_cast<std::uint64_t>(value)), m_kind(std::is_signed_v<T> ? Kind::Signed : Kind::Unsigned),
          m_bytes(sizeof(T))
    {}
    template <class T, class = std::enable_if_t<std::is_enum_v<T>>>
    constexpr FormatArg(T value) noexcept : FormatArg(static_cast<std::underlying_type_t<T>>(value))
    {}
    constexpr FormatArg(wchar_t value) noexcept
        : m_number(static_cast<std::make_unsigned_t<wchar_t>>(value)), m_kind(Kind::Character), m_bytes(sizeof(wchar_t))
    {}
    constexpr FormatArg(const wchar_t* text) noexcept : m_wide(text), m_size(kTerminated), m_kind(Kind::Wide) {}
    constexpr FormatArg(std::wstring_view text) noexcept : m_wide(Data(text)), m_size(text.size()), m_kind(Kind::Wide)
    {}
    FormatArg(const std::wstring& text) noexcept : m_wide(text.data()), m_size(text.size()), m_kind(Kind::Wide) {}
    FormatArg(const CString& text) noexcept; // in platform/framework/String.h
    constexpr FormatArg(const char* text) noexcept : m_narrow(text), m_size(kTerminated), m_kind(Kind::Narrow) {}
    constexpr FormatArg(std::string_view text) noexcept
        : m_narrow(text.data() != nullptr ? text.data() : ""), m_size(text.size()), m_kind(Kind::Narrow)
    {}
    FormatArg(const std::string& text) noexcept : m_narrow(text.data()), m_size(text.size()), m_kind(Kind::Narrow) {}
    constexpr FormatArg(const void* pointer) noexcept : m_pointer(pointer), m_kind(Kind::Pointer) {}
    constexpr FormatArg(std::nullptr_t) noexcept : m_wide(nullptr), m_size(kTerminated), m_kind(Kind::Wide) {}

    // The size of text that ends with its NUL.
    static constexpr std::size_t kTerminated = static_cast<std::size_t>(-1);

    Kind GetKind() const noexcept { return m_kind; }
    bool IsText() const noexcept { return m_kind == Kind::Wide || m_kind == Kind::Narrow; }
    // A number or character, sign-extended to 64 bits where it is signed; and the width it was given in.
    std::uint64_t Number() const noexcept { return m_number; }
    unsigned Bytes() const noexcept { return m_bytes; }
    const wchar_t* Wide() const noexcept { return m_wide; }
    const char* Narrow() const noexcept { return m_narrow; }
    const void* Pointer() const noexcept { return m_pointer; }
    std::size_t Size() const noexcept { return m_size; }

  private:
    static constexpr const wchar_t* Data(std::wstring_view text) noexcept
    {
        return text.data() != nullptr ? text.data() : L"";
    }

    union
    {
        std::uint64_t m_number;
        const wchar_t* m_wide;
        const char* m_narrow;
        const void* m_pointer;
    };
    std::size_t m_size = 0;
    Kind m_kind;
    std::uint8_t m_bytes = 0;
};

template <class T>
concept Formattable = std::constructible_from<FormatArg, const T&>;

// Appends the formatted text to `out`, which no argument may refer to. Arguments are taken by reference: pass a member
// of a packed structure as a value (`+unit.ulCount`). A null format appends nothing.
WQSPCFG_API void FormatTo(std::wstring& out, const wchar_t* format, std::span<const FormatArg> args);

template <Formattable... Args>
void FormatTo(std::wstring& out, const wchar_t* format, const Args&... args)
{
    if constexpr (sizeof...(Args) == 0) {
        FormatTo(out, format, std::span<const FormatArg>());
    } else {
        const FormatArg list[] = {FormatArg(args)...};
        FormatTo(out, format, std::span<const FormatArg>(list));
    }
}

template <Formattable... Args>
std::wstring FormatString(const wchar_t* format, const Args&... args)
{
    std::wstring out;
    FormatTo(out, format, args...);
    return out;
}

} // namespace wqspcfg
