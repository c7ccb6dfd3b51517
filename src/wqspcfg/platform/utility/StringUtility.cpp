#include "wqspcfg/platform/utility/StringUtility.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <string>

namespace {

bool IsBlank(wchar_t ch) noexcept
{
    return ch == L' ' || (ch >= L'\t' && ch <= L'\r');
}

void SkipBlanks(std::wstring_view& text) noexcept
{
    while (!text.empty() && IsBlank(text.front())) {
        text.remove_prefix(1);
    }
}

// Takes a sign away from the text; true for a minus.
bool TakeSign(std::wstring_view& text) noexcept
{
    const bool negative = !text.empty() && text.front() == L'-';
    if (negative || (!text.empty() && text.front() == L'+')) {
        text.remove_prefix(1);
    }
    return negative;
}

// The value of a digit in any radix up to 36, else 36.
unsigned DigitValue(wchar_t ch) noexcept
{
    if (ch >= L'0' && ch <= L'9') {
        return static_cast<unsigned>(ch - L'0');
    }
    if (ch >= L'a' && ch <= L'z') {
        return static_cast<unsigned>(ch - L'a') + 10;
    }
    if (ch >= L'A' && ch <= L'Z') {
        return static_cast<unsigned>(ch - L'A') + 10;
    }
    return 36;
}

// Takes the digits at the beginning away. A number beyond 32 bits stays somewhere beyond them.
std::int64_t TakeDigits(std::wstring_view& text, unsigned radix) noexcept
{
    constexpr std::int64_t kEnough = std::int64_t{1} << 40;
    std::int64_t number = 0;
    for (; !text.empty() && DigitValue(text.front()) < radix; text.remove_prefix(1)) {
        number = std::min(number * radix + DigitValue(text.front()), kEnough);
    }
    return number;
}

} // namespace

int CStringUtility::SplitString(CStringArray& out, const CString& text, wchar_t sep)
{
    out.RemoveAll();
    std::wstring_view rest = text.View();
    if (rest.empty()) {
        return 0;
    }
    for (std::size_t end; (end = rest.find(sep)) != std::wstring_view::npos; rest.remove_prefix(end + 1)) {
        out.Add(rest.substr(0, end));
    }
    out.Add(rest);
    return static_cast<int>(out.GetSize());
}

CString CStringUtility::CombineString(const CStringArray& parts, wchar_t sep)
{
    std::wstring text;
    bool first = true;
    for (const CString& part : parts) {
        if (!first) {
            text += sep;
        }
        text += part.Std();
        first = false;
    }
    return text;
}

bool CStringUtility::atoi(int& out, const CString& text, unsigned char radix)
{
    if (radix < 2 || radix > 36) {
        return false;
    }
    std::wstring_view rest = text.View();
    SkipBlanks(rest);
    const bool negative = TakeSign(rest);
    if (radix == 16 && rest.size() > 2 && rest[0] == L'0' && (rest[1] == L'x' || rest[1] == L'X')) {
        rest.remove_prefix(2);
    }
    const std::size_t before = rest.size();
    const std::int64_t magnitude = TakeDigits(rest, radix);
    const bool digits = rest.size() != before;
    SkipBlanks(rest);
    const std::int64_t number = negative ? -magnitude : magnitude;
    if (!digits || !rest.empty() || number < std::numeric_limits<int>::min() ||
        number > std::numeric_limits<int>::max()) {
        return false;
    }
    out = static_cast<int>(number);
    return true;
}

namespace wqspcfg {

LONG ParseDecimal(std::wstring_view text) noexcept
{
    SkipBlanks(text);
    const bool negative = TakeSign(text);
    const std::int64_t magnitude = TakeDigits(text, 10);
    return static_cast<LONG>(std::clamp<std::int64_t>(
        negative ? -magnitude : magnitude, std::numeric_limits<LONG>::min(), std::numeric_limits<LONG>::max()));
}

std::optional<DWORD> ParseDword(std::wstring_view digits, unsigned radix) noexcept
{
    auto rest = digits;
    const std::int64_t number = TakeDigits(rest, radix);
    return digits.empty() || !rest.empty() || number > std::numeric_limits<DWORD>::max()
               ? std::nullopt
               : std::optional(static_cast<DWORD>(number));
}

} // namespace wqspcfg
