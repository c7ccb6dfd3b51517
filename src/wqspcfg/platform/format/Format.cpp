#include "wqspcfg/platform/format/Format.h"

#include "wqspcfg/platform/text/NarrowText.h"

#include <algorithm>
#include <climits>
#include <iterator>

namespace wqspcfg {
namespace {

constexpr int kMaxPadding = 32767;

// The part of a conversion that stands before its letter.
struct Conversion
{
    bool left = false;
    bool plus = false;
    bool blank = false;
    bool zero = false;
    bool alternate = false;
    int width = 0;
    int precision = -1; // none
    int bits = 0;       // the length modifier's, 0 where it does not matter
};

class Arguments
{
  public:
    explicit Arguments(std::span<const FormatArg> args) : m_next(args.data()), m_end(args.data() + args.size()) {}

    const FormatArg* Next() noexcept { return m_next != m_end ? m_next++ : nullptr; }

  private:
    const FormatArg* m_next;
    const FormatArg* m_end;
};

// Digits, which stop at INT_MAX instead of overflowing.
int ParseNumber(const wchar_t*& at) noexcept
{
    int number = 0;
    for (; *at >= L'0' && *at <= L'9'; ++at) {
        const int digit = static_cast<int>(*at - L'0');
        number = number > (INT_MAX - digit) / 10 ? INT_MAX : number * 10 + digit;
    }
    return number;
}

// The number that a * takes from the arguments.
int StarNumber(const FormatArg* arg, int missing) noexcept
{
    if (arg == nullptr || arg->IsText() || arg->GetKind() == FormatArg::Kind::Pointer) {
        return missing;
    }
    const auto number = static_cast<std::int64_t>(arg->Number());
    return static_cast<int>(std::clamp<std::int64_t>(number, -INT_MAX, INT_MAX));
}

void ParseFlags(const wchar_t*& at, Conversion& conversion) noexcept
{
    for (;; ++at) {
        switch (*at) {
        case L'-':
            conversion.left = true;
            break;
        case L'+':
            conversion.plus = true;
            break;
        case L' ':
            conversion.blank = true;
            break;
        case L'0':
            conversion.zero = true;
            break;
        case L'#':
            conversion.alternate = true;
            break;
        default:
            return;
        }
    }
}

void ParseWidthAndPrecision(const wchar_t*& at, Conversion& conversion, Arguments& arguments) noexcept
{
    if (*at == L'*') {
        ++at;
        conversion.width = StarNumber(arguments.Next(), 0);
        if (conversion.width < 0) {
            conversion.left = true;
            conversion.width = -conversion.width;
        }
    } else {
        conversion.width = ParseNumber(at);
    }
    conversion.width = std::min(conversion.width, kMaxPadding);
    if (*at == L'.') {
        ++at;
        if (*at == L'*') {
            ++at;
            conversion.precision = std::max(StarNumber(arguments.Next(), -1), -1);
        } else {
            conversion.precision = ParseNumber(at);
        }
    }
}

void ParseLength(const wchar_t*& at, Conversion& conversion) noexcept
{
    for (;; ++at) {
        switch (*at) {
        case L'h':
            conversion.bits = conversion.bits == 16 ? 8 : 16;
            break;
        case L'l':
            if (at[1] == L'l') {
                ++at;
                conversion.bits = 64;
            }
            break;
        case L'I':
            if (at[1] == L'6' && at[2] == L'4') {
                at += 2;
                conversion.bits = 64;
            } else if (at[1] == L'3' && at[2] == L'2') {
                at += 2;
                conversion.bits = 32;
            }
            break;
        case L'j':
        case L't':
        case L'w':
        case L'z':
        case L'L':
            break;
        default:
            return;
        }
    }
}

void AppendPadded(std::wstring& out, std::wstring_view text, const Conversion& conversion)
{
    const auto width = static_cast<std::size_t>(conversion.width);
    const std::size_t padding = text.size() < width ? width - text.size() : 0;
    if (padding != 0 && !conversion.left) {
        out.append(padding, L' ');
    }
    out.append(text);
    if (padding != 0 && conversion.left) {
        out.append(padding, L' ');
    }
}

// Blanks, prefix, zeros, digits, blanks.
void AppendDigits(std::wstring& out, std::wstring_view prefix, std::wstring_view digits, const Conversion& conversion)
{
    if (conversion.width == 0 && conversion.precision < 0) {
        out.append(prefix).append(digits);
        return;
    }
    const auto width = static_cast<std::size_t>(conversion.width);
    std::size_t zeros = 0;
    if (conversion.precision >= 0) {
        const auto precision = static_cast<std::size_t>(std::min(conversion.precision, kMaxPadding));
        zeros = precision > digits.size() ? precision - digits.size() : 0;
    } else if (conversion.zero && !conversion.left && width > prefix.size() + digits.size()) {
        zeros = width - prefix.size() - digits.size();
    }
    const std::size_t size = prefix.size() + zeros + digits.size();
    const std::size_t padding = size < width ? width - size : 0;
    if (!conversion.left) {
        out.append(padding, L' ');
    }
    out.append(prefix).append(zeros, L'0').append(digits);
    if (conversion.left) {
        out.append(padding, L' ');
    }
}

// A number with its sign, in the bits that the conversion shows.
struct Shown
{
    std::uint64_t bits;
    int width;
};

Shown Narrow(const FormatArg& arg, const Conversion& conversion) noexcept
{
    const int width = conversion.bits != 0 ? conversion.bits : arg.Bytes() > 4 ? 64 : 32;
    return {width == 64 ? arg.Number() : arg.Number() & ((std::uint64_t{1} << width) - 1), width};
}

void AppendSigned(std::wstring& out, const FormatArg& arg, const Conversion& conversion)
{
    const Shown shown = Narrow(arg, conversion);
    const bool negative = (shown.bits >> (shown.width - 1) & 1) != 0;
    std::uint64_t magnitude = shown.bits;
    if (negative) {
        magnitude = (shown.width == 64 ? 0 : std::uint64_t{1} << shown.width) - shown.bits;
    }

    wchar_t buffer[20];
    wchar_t* first = std::end(buffer);
    for (; magnitude != 0; magnitude /= 10) {
        *--first = static_cast<wchar_t>(L'0' + static_cast<wchar_t>(magnitude % 10));
    }
    if (first == std::end(buffer) && conversion.precision != 0) {
        *--first = L'0';
    }
    const wchar_t* const sign = negative ? L"-" : conversion.plus ? L"+" : conversion.blank ? L" " : L"";
    AppendDigits(out, sign, {first, static_cast<std::size_t>(std::end(buffer) - first)}, conversion);
}

void AppendUnsigned(std::wstring& out, std::uint64_t number, unsigned radix, bool upper, std::wstring_view prefix,
                    const Conversion& conversion)
{
    const wchar_t* const alphabet = upper ? L"0123456789ABCDEF" : L"0123456789abcdef";
    const bool zero = number == 0;
    wchar_t buffer[24];
    wchar_t* first = std::end(buffer);
    if (radix == 10) {
        for (; number != 0; number /= 10) {
            *--first = alphabet[number % 10];
        }
    } else {
        const unsigned shift = radix == 16 ? 4 : 3;
        for (; number != 0; number >>= shift) {
            *--first = alphabet[number & (radix - 1)];
        }
    }
    if (zero && conversion.precision != 0) {
        *--first = L'0';
    }
    // The alternate form of octal is a leading zero digit.
    if (radix == 8 && conversion.alternate && (first == std::end(buffer) || *first != L'0')) {
        *--first = L'0';
    }
    if (!conversion.alternate || radix != 16 || zero) {
        prefix = {};
    }
    AppendDigits(out, prefix, {first, static_cast<std::size_t>(std::end(buffer) - first)}, conversion);
}

void AppendPointer(std::wstring& out, std::uint64_t address, Conversion conversion)
{
    conversion.precision = 2 * sizeof(void*);
    conversion.alternate = false;
    AppendUnsigned(out, address, 16, true, {}, conversion);
}

// Terminated text may lack its NUL where a precision ends it first, as in a structure's character array.
template <class Char>
std::size_t TextSize(const Char* text, std::size_t size, std::size_t limit) noexcept
{
    if (size != FormatArg::kTerminated) {
        return std::min(size, limit);
    }
    if (limit == FormatArg::kTerminated) {
        return std::char_traits<Char>::length(text);
    }
    return static_cast<std::size_t>(std::find(text, text + limit, Char()) - text);
}

void AppendText(std::wstring& out, const FormatArg& arg, const Conversion& conversion)
{
    const std::size_t limit =
        conversion.precision >= 0 ? static_cast<std::size_t>(conversion.precision) : FormatArg::kTerminated;
    if (arg.GetKind() == FormatArg::Kind::Narrow && arg.Narrow() != nullptr) {
        const std::wstring wide = NarrowToWide({arg.Narrow(), TextSize(arg.Narrow(), arg.Size(), limit)});
        AppendPadded(out, wide, conversion);
    } else if (arg.GetKind() == FormatArg::Kind::Wide && arg.Wide() != nullptr) {
        AppendPadded(out, {arg.Wide(), TextSize(arg.Wide(), arg.Size(), limit)}, conversion);
    } else {
        AppendPadded(out, std::wstring_view(L"(null)").substr(0, limit), conversion);
    }
}

void AppendCharacter(std::wstring& out, std::uint64_t number, const Conversion& conversion)
{
    const auto character = static_cast<wchar_t>(number);
    AppendPadded(out, {&character, 1}, conversion);
}

// An argument that the conversion was not meant for.
void AppendNatural(std::wstring& out, const FormatArg& arg, Conversion conversion)
{
    conversion.precision = -1;
    conversion.bits = 0;
    switch (arg.GetKind()) {
    case FormatArg::Kind::Signed:
        AppendSigned(out, arg, conversion);
        break;
    case FormatArg::Kind::Unsigned:
        AppendUnsigned(out, arg.Number(), 10, false, {}, conversion);
        break;
    case FormatArg::Kind::Character:
        AppendCharacter(out, arg.Number(), conversion);
        break;
    case FormatArg::Kind::Wide:
    case FormatArg::Kind::Narrow:
        AppendText(out, arg, conversion);
        break;
    case FormatArg::Kind::Pointer:
        AppendPointer(out, reinterpret_cast<std::uintptr_t>(arg.Pointer()), conversion);
        break;
    }
}

bool IsConversion(wchar_t letter) noexcept
{
    switch (letter) {
    case L'd':
    case L'i':
    case L'u':
    case L'x':
    case L'X':
    case L'o':
    case L'c':
    case L'C':
    case L's':
    case L'S':
    case L'p':
        return true;
    default:
        return false;
    }
}

void AppendArgument(std::wstring& out, wchar_t letter, const FormatArg& arg, const Conversion& conversion)
{
    const bool number = !arg.IsText() && arg.GetKind() != FormatArg::Kind::Pointer;
    if (letter == L's' || letter == L'S') {
        arg.IsText() ? AppendText(out, arg, conversion) : AppendNatural(out, arg, conversion);
        return;
    }
    if (!number) {
        AppendNatural(out, arg, conversion);
        return;
    }
    switch (letter) {
    case L'd':
    case L'i':
        AppendSigned(out, arg, conversion);
        break;
    case L'u':
        AppendUnsigned(out, Narrow(arg, conversion).bits, 10, false, {}, conversion);
        break;
    case L'o':
        AppendUnsigned(out, Narrow(arg, conversion).bits, 8, false, {}, conversion);
        break;
    case L'x':
        AppendUnsigned(out, Narrow(arg, conversion).bits, 16, false, L"0x", conversion);
        break;
    case L'X':
        AppendUnsigned(out, Narrow(arg, conversion).bits, 16, true, L"0X", conversion);
        break;
    case L'p':
        AppendPointer(out, arg.Number(), conversion);
        break;
    default: // c, C: one byte of narrow text is one character
        AppendCharacter(out, arg.Bytes() == 1 ? arg.Number() & 0xFF : arg.Number(), conversion);
        break;
    }
}

} // namespace

void FormatTo(std::wstring& out, const wchar_t* format, std::span<const FormatArg> args)
{
    if (format == nullptr) {
        return;
    }
    Arguments arguments(args);
    const wchar_t* at = format;
    for (;;) {
        const wchar_t* const literal = at;
        while (*at != L'\0' && *at != L'%') {
            ++at;
        }
        out.append(literal, at);
        if (*at == L'\0') {
            return;
        }

        const wchar_t* const start = at++;
        if (*at == L'%') {
            out += *at++;
            continue;
        }
        Conversion conversion;
        if (!IsConversion(*at)) { // most stand alone
            ParseFlags(at, conversion);
            ParseWidthAndPrecision(at, conversion, arguments);
            ParseLength(at, conversion);
        }
        const FormatArg* const arg = IsConversion(*at) ? arguments.Next() : nullptr;
        if (arg != nullptr) {
            AppendArgument(out, *at++, *arg, conversion);
        } else {
            at += *at != L'\0';
            out.append(start, at);
        }
    }
}

} // namespace wqspcfg
