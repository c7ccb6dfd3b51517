#include "wqspcfg/platform/text/Utf.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstring>
#include <type_traits>

namespace wqspcfg {

namespace {

constexpr bool kWideIsUtf16 = sizeof(wchar_t) == 2;

static_assert(std::endian::native == std::endian::little, "code units are copied as UTF-16LE");

constexpr bool IsHigh(char32_t ch)
{
    return (ch & 0xFFFFFC00) == 0xD800;
}
constexpr bool IsLow(char32_t ch)
{
    return (ch & 0xFFFFFC00) == 0xDC00;
}
constexpr bool IsSurrogate(char32_t ch)
{
    return (ch & 0xFFFFF800) == 0xD800;
}
constexpr char32_t Combine(char32_t high, char32_t low)
{
    return (high << 10) + low - 0x35FDC00;
}
constexpr char16_t HighOf(char32_t ch)
{
    return static_cast<char16_t>(0xD7C0 + (ch >> 10));
}
constexpr char16_t LowOf(char32_t ch)
{
    return static_cast<char16_t>(0xDC00 + (ch & 0x3FF));
}

constexpr char32_t Unit(wchar_t ch)
{
    return kWideIsUtf16 ? static_cast<char32_t>(static_cast<std::uint16_t>(ch)) : static_cast<char32_t>(ch);
}

// Reads the character at `pos`; a lone surrogate is given as itself.
bool NextCharacter(std::wstring_view text, std::size_t& pos, char32_t& ch)
{
    ch = Unit(text[pos++]);
    if (ch < 0xD800) {
        return true;
    }
    if (IsHigh(ch) && pos < text.size() && IsLow(Unit(text[pos]))) {
        if constexpr (!kWideIsUtf16) {
            return false;
        }
        ch = Combine(ch, Unit(text[pos++]));
    }
    return ch <= 0x10FFFF;
}

// How many characters at the beginning of `text` are ASCII: nearly all texts are as a whole, and are copied so.
template <class Char>
std::size_t AsciiPrefix(std::basic_string_view<Char> text)
{
    const auto other = std::find_if(text.begin(), text.end(),
                                    [](Char ch) { return static_cast<std::make_unsigned_t<Char>>(ch) > 0x7F; });
    return static_cast<std::size_t>(other - text.begin());
}

template <class Char, class Out>
std::size_t AppendAsciiPrefix(std::basic_string_view<Char> text, Out& out)
{
    const auto count = AsciiPrefix(text);
    const auto size = out.size();
    out.resize(size + count);
    std::copy_n(text.data(), count, out.data() + size);
    return count;
}

// Undoes what was appended when the input turns out to be ill-formed.
template <class Container>
class Appender
{
  public:
    explicit Appender(Container& target) : m_target(target), m_size(target.size()) {}
    ~Appender()
    {
        if (!m_done) {
            m_target.resize(m_size);
        }
    }
    Appender(const Appender&) = delete;
    Appender& operator=(const Appender&) = delete;
    bool Done() { return m_done = true; }

  private:
    Container& m_target;
    std::size_t m_size;
    bool m_done = false;
};

void PutUtf8(char32_t ch, std::string& out)
{
    const auto put = [&out](char32_t byte) { out.push_back(static_cast<char>(byte)); };
    if (ch < 0x80) {
        put(ch);
    } else if (ch < 0x800) {
        put(0xC0 | (ch >> 6));
        put(0x80 | (ch & 0x3F));
    } else if (ch < 0x10000) {
        put(0xE0 | (ch >> 12));
        put(0x80 | ((ch >> 6) & 0x3F));
        put(0x80 | (ch & 0x3F));
    } else {
        put(0xF0 | (ch >> 18));
        put(0x80 | ((ch >> 12) & 0x3F));
        put(0x80 | ((ch >> 6) & 0x3F));
        put(0x80 | (ch & 0x3F));
    }
}

// Reads one UTF-8 sequence in its shortest form; surrogates are characters here.
bool NextUtf8(std::string_view utf8, std::size_t& pos, char32_t& ch)
{
    const auto lead = static_cast<unsigned char>(utf8[pos++]);
    if (lead < 0x80) {
        ch = lead;
        return true;
    }
    int more;
    char32_t least;
    if ((lead & 0xE0) == 0xC0) {
        more = 1;
        least = 0x80;
        ch = lead & 0x1F;
    } else if ((lead & 0xF0) == 0xE0) {
        more = 2;
        least = 0x800;
        ch = lead & 0x0F;
    } else if ((lead & 0xF8) == 0xF0) {
        more = 3;
        least = 0x10000;
        ch = lead & 0x07;
    } else {
        return false;
    }
    for (; more > 0; --more) {
        if (pos == utf8.size() || (static_cast<unsigned char>(utf8[pos]) & 0xC0) != 0x80) {
            return false;
        }
        ch = (ch << 6) | (static_cast<unsigned char>(utf8[pos++]) & 0x3FU);
    }
    return ch >= least && ch <= 0x10FFFF;
}

void PutWide(char32_t ch, std::wstring& text)
{
    if (kWideIsUtf16 && ch > 0xFFFF) {
        text.push_back(static_cast<wchar_t>(HighOf(ch)));
        text.push_back(static_cast<wchar_t>(LowOf(ch)));
    } else {
        text.push_back(static_cast<wchar_t>(ch));
    }
}

void PutUtf16(char32_t ch, std::u16string& units)
{
    if (ch > 0xFFFF) {
        units.push_back(HighOf(ch));
        units.push_back(LowOf(ch));
    } else {
        units.push_back(static_cast<char16_t>(ch));
    }
}

enum class Surrogates
{
    Refused,
    Lone,  // a pair of two is refused
    Paired // code units: a pair is one character
};

bool EncodeUtf8(std::wstring_view text, Surrogates surrogates, std::string& utf8)
{
    Appender appender(utf8);
    for (auto pos = AppendAsciiPrefix(text, utf8); pos < text.size();) {
        char32_t ch;
        if (!NextCharacter(text, pos, ch) || (surrogates == Surrogates::Refused && IsSurrogate(ch))) {
            return false;
        }
        if (surrogates == Surrogates::Paired && ch > 0xFFFF) {
            PutUtf8(HighOf(ch), utf8);
            PutUtf8(LowOf(ch), utf8);
        } else {
            PutUtf8(ch, utf8);
        }
    }
    return appender.Done();
}

template <class Put>
bool DecodeUtf8(std::string_view utf8, Surrogates surrogates, Put put)
{
    char32_t previous = 0;
    for (std::size_t pos = 0; pos < utf8.size();) {
        char32_t ch;
        if (!NextUtf8(utf8, pos, ch)) {
            return false;
        }
        if (surrogates == Surrogates::Paired) {
            if (ch > 0xFFFF) {
                return false;
            }
            if (IsHigh(ch)) {
                char32_t low;
                auto next = pos;
                if (next < utf8.size() && NextUtf8(utf8, next, low) && IsLow(low)) {
                    ch = Combine(ch, low);
                    pos = next;
                }
            }
        } else if (IsSurrogate(ch)) {
            if (surrogates == Surrogates::Refused || (IsHigh(previous) && IsLow(ch))) {
                return false;
            }
        }
        put(ch);
        previous = ch;
    }
    return true;
}

bool DecodeUtf8(std::string_view utf8, Surrogates surrogates, std::wstring& text)
{
    Appender appender(text);
    utf8.remove_prefix(AppendAsciiPrefix(utf8, text));
    return DecodeUtf8(utf8, surrogates, [&text](char32_t ch) { PutWide(ch, text); }) && appender.Done();
}

} // namespace

std::size_t Utf16Length(std::wstring_view text) noexcept
{
    auto length = text.size();
    if constexpr (!kWideIsUtf16) {
        for (const auto ch : text) {
            length += Unit(ch) > 0xFFFF ? 1U : 0U;
        }
    }
    return length;
}

bool AppendUtf16(std::wstring_view text, std::u16string& units)
{
    Appender appender(units);
    for (auto pos = AppendAsciiPrefix(text, units); pos < text.size();) {
        char32_t ch;
        if (!NextCharacter(text, pos, ch)) {
            return false;
        }
        PutUtf16(ch, units);
    }
    return appender.Done();
}

bool AppendUtf16Le(std::wstring_view text, std::vector<std::byte>& bytes)
{
    std::u16string units;
    if (!AppendUtf16(text, units)) {
        return false;
    }
    const auto* first = reinterpret_cast<const std::byte*>(units.data());
    bytes.insert(bytes.end(), first, first + units.size() * 2);
    return true;
}

void AppendWide(std::u16string_view units, std::wstring& text)
{
    for (auto pos = AppendAsciiPrefix(units, text); pos < units.size(); ++pos) {
        char32_t ch = units[pos];
        if (!kWideIsUtf16 && IsHigh(ch) && pos + 1 < units.size() && IsLow(units[pos + 1])) {
            ch = Combine(ch, units[++pos]);
        }
        text.push_back(static_cast<wchar_t>(ch));
    }
}

bool AppendWideFromUtf16Le(std::span<const std::byte> bytes, std::wstring& text)
{
    if (bytes.size() % 2 != 0) {
        return false;
    }
    const auto count = bytes.size() / 2;
    text.reserve(text.size() + count);
    const auto unit = [&bytes](std::size_t index) {
        std::uint16_t value;
        std::memcpy(&value, bytes.data() + index * 2, 2);
        return static_cast<char32_t>(value);
    };
    for (std::size_t pos = 0; pos < count; ++pos) {
        char32_t ch = unit(pos);
        if (!kWideIsUtf16 && IsHigh(ch) && pos + 1 < count && IsLow(unit(pos + 1))) {
            ch = Combine(ch, unit(++pos));
        }
        text.push_back(static_cast<wchar_t>(ch));
    }
    return true;
}

bool AppendUtf8(std::wstring_view text, std::string& utf8)
{
    return EncodeUtf8(text, Surrogates::Refused, utf8);
}

bool AppendWideFromUtf8(std::string_view utf8, std::wstring& text)
{
    return DecodeUtf8(utf8, Surrogates::Refused, text);
}

bool AppendUtf16FromUtf8(std::string_view utf8, std::u16string& units)
{
    Appender appender(units);
    utf8.remove_prefix(AppendAsciiPrefix(utf8, units));
    return DecodeUtf8(utf8, Surrogates::Refused, [&units](char32_t ch) { PutUtf16(ch, units); }) && appender.Done();
}

bool AppendGeneralizedUtf8(std::wstring_view text, std::string& utf8)
{
    return EncodeUtf8(text, Surrogates::Lone, utf8);
}

bool AppendWideFromGeneralizedUtf8(std::string_view utf8, std::wstring& text)
{
    return DecodeUtf8(utf8, Surrogates::Lone, text);
}

bool AppendCesu8(std::wstring_view text, std::string& cesu8)
{
    return EncodeUtf8(text, Surrogates::Paired, cesu8);
}

bool AppendWideFromCesu8(std::string_view cesu8, std::wstring& text)
{
    return DecodeUtf8(cesu8, Surrogates::Paired, text);
}

std::string Utf8ForMessage(std::wstring_view text)
{
    std::string utf8;
    for (std::size_t pos = 0; pos < text.size();) {
        char32_t ch;
        if (!NextCharacter(text, pos, ch) || IsSurrogate(ch)) {
            ch = 0xFFFD;
        }
        PutUtf8(ch, utf8);
    }
    return utf8;
}

} // namespace wqspcfg
