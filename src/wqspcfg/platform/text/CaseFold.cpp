#include "wqspcfg/platform/text/CaseFold.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace wqspcfg {

namespace {

struct CaseRange
{
    char32_t first;
    char32_t last;
    int step;
    int distance;
};

constexpr CaseRange kRanges[] = {
#include "wqspcfg/platform/text/CaseFoldTable.inc"
};

constexpr std::size_t kPageSize = 256;

constexpr std::size_t CountPages()
{
    std::array<bool, 256> used{};
    std::size_t count = 1; // page 0 maps nothing
    for (const auto& range : kRanges) {
        for (auto page = range.first / kPageSize; page <= range.last / kPageSize; ++page) {
            count += used[page] ? 0U : 1U;
            used[page] = true;
        }
    }
    return count;
}

// The ranges spread out: a page number for each 256 characters, and the distance of each character of those pages.
struct CaseTable
{
    std::array<std::uint8_t, 256> page{};
    std::array<std::array<std::uint16_t, kPageSize>, CountPages()> distance{};

    constexpr CaseTable()
    {
        std::uint8_t used = 0;
        for (const auto& range : kRanges) {
            for (auto ch = range.first; ch <= range.last; ch += static_cast<char32_t>(range.step)) {
                auto& number = page[ch / kPageSize];
                if (number == 0) {
                    number = ++used;
                }
                distance[number][ch % kPageSize] = static_cast<std::uint16_t>(range.distance);
            }
        }
    }
};

constexpr CaseTable kTable;

bool IsSurrogateOrAbove(char32_t ch)
{
    return ch >= 0xD800;
}

constexpr char32_t FirstUnit(char32_t ch)
{
    return ch > 0xFFFF ? 0xD7C0 + (ch >> 10) : ch;
}

// Orders two different characters by their UTF-16 code units, where that is not the order of the characters: those
// beyond the Basic Multilingual Plane come before U+E000. A character and a lone surrogate may share their first unit.
int CompareAsUtf16(std::wstring_view left, std::wstring_view right)
{
    const auto unit = [](std::wstring_view text, std::size_t index) -> char32_t {
        const auto ch = static_cast<char32_t>(text[0]);
        if (index == 0) {
            return FirstUnit(ch);
        }
        if (ch > 0xFFFF) {
            return 0xDC00 + (ch & 0x3FF);
        }
        return text.size() > 1 ? FirstUnit(static_cast<char32_t>(UpCase(text[1]))) : 0;
    };
    const std::size_t index = unit(left, 0) == unit(right, 0) ? 1 : 0;
    return unit(left, index) < unit(right, index) ? -1 : 1;
}

} // namespace

namespace detail {

wchar_t UpCaseNonAscii(wchar_t ch) noexcept
{
    const auto code = static_cast<char32_t>(ch);
    if (code > 0xFFFF) {
        return ch;
    }
    const auto distance = kTable.distance[kTable.page[code / kPageSize]][code % kPageSize];
    return static_cast<wchar_t>((code + distance) & 0xFFFF);
}

} // namespace detail

std::wstring UpCase(std::wstring_view text)
{
    std::wstring upper(text);
    for (auto& ch : upper) {
        ch = UpCase(ch);
    }
    return upper;
}

int CompareNoCase(std::wstring_view left, std::wstring_view right) noexcept
{
    const auto common = std::min(left.size(), right.size());
    for (std::size_t i = 0; i < common; ++i) {
        if (left[i] == right[i]) {
            continue;
        }
        const auto a = static_cast<char32_t>(UpCase(left[i]));
        const auto b = static_cast<char32_t>(UpCase(right[i]));
        if (a != b) {
            if (sizeof(wchar_t) > 2 && IsSurrogateOrAbove(a) && IsSurrogateOrAbove(b) && (a > 0xFFFF || b > 0xFFFF)) {
                return CompareAsUtf16(left.substr(i), right.substr(i));
            }
            return a < b ? -1 : 1;
        }
    }
    return left.size() == right.size() ? 0 : (left.size() < right.size() ? -1 : 1);
}

bool EqualNoCase(std::wstring_view left, std::wstring_view right) noexcept
{
    return left.size() == right.size() && (left == right || CompareNoCase(left, right) == 0);
}

std::size_t HashNoCase(std::wstring_view text) noexcept
{
    std::uint64_t hash = 0xCBF29CE484222325;
    for (const auto ch : text) {
        hash = (hash ^ static_cast<std::uint64_t>(UpCase(ch))) * 0x100000001B3;
    }
    return static_cast<std::size_t>(hash ^ (hash >> 32));
}

} // namespace wqspcfg
