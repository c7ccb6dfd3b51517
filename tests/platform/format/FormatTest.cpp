#include "wqspcfg/platform/format/Format.h"

#include "wqspcfg/platform/base/WinTypes.h"
#include "wqspcfg/platform/framework/String.h"

#include <climits>
#include <cstdarg>
#include <cwchar>
#include <gtest/gtest.h>
#include <limits>
#include <random>

namespace wqspcfg {
namespace {

constexpr DWORD kAllOnes = 0xFFFFFFFF;

TEST(Format, PrintsConfigurationLines)
{
    EXPECT_EQ(FormatString(L"[CFG] %40s : %d[port; 1 = COM1]", L"Port", DWORD{7}),
              L"[CFG]                                     Port : 7[port; 1 = COM1]");
    const std::wstring longName(45, L'n');
    EXPECT_EQ(FormatString(L"[CFG] %40s : %s", longName, CString(L"v")), L"[CFG] " + longName + L" : v");
    EXPECT_EQ(FormatString(L"[CFG]%40d : %d  ", 12, 3), L"[CFG]" + std::wstring(38, L' ') + L"12 : 3  ");
    EXPECT_EQ(FormatString(L"[CFG] 40%s:%d", L"X", 1), L"[CFG] 40X:1");
    EXPECT_EQ(FormatString(L"RGB(%d, %d, %d)-%d", BYTE{255}, BYTE{0}, BYTE{9}, 16), L"RGB(255, 0, 9)-16");
    EXPECT_EQ(FormatString(L"<%-20ld><%-20s>", LONG{-5}, L"ab"), L"<-5                  ><ab                  >");
    EXPECT_EQ(FormatString(L"0x%.06x 0x%02X 0x%08x %02d", 0xABCu, 10, DWORD{0x80000000}, 7),
              L"0x000abc 0x0A 0x80000000 07");
}

TEST(Format, KeepsTheWidthsOfIntegers)
{
    EXPECT_EQ(FormatString(L"%d %u %x", kAllOnes, kAllOnes, kAllOnes), L"-1 4294967295 ffffffff");
    EXPECT_EQ(FormatString(L"%d %u %X", -1, -1, -1), L"-1 4294967295 FFFFFFFF");
    EXPECT_EQ(FormatString(L"%d %d", WORD{0xFFFF}, BYTE{0xFF}), L"65535 255");
    EXPECT_EQ(FormatString(L"%x", SHORT{-1}), L"ffffffff");
    EXPECT_EQ(FormatString(L"%hd %hhu %hx", 0x1FFFF, 0x1FE, -1), L"-1 254 ffff");
    EXPECT_EQ(FormatString(L"%d %I64d %lld", std::numeric_limits<std::int64_t>::min(), kAllOnes, -1),
              L"-9223372036854775808 4294967295 -1");
    EXPECT_EQ(FormatString(L"%I32d %u", std::uint64_t{0x1FFFFFFFF}, std::numeric_limits<std::uint64_t>::max()),
              L"-1 18446744073709551615");
    EXPECT_EQ(FormatString(L"%ld %zu %d", INT_MIN, std::size_t{3}, true), L"-2147483648 3 1");
    enum class State : std::uint8_t
    {
        On = 200
    };
    EXPECT_EQ(FormatString(L"%d", State::On), L"200");
}

TEST(Format, TakesTextOfEveryKind)
{
    const wchar_t* const null = nullptr;
    EXPECT_EQ(FormatString(L"[%s][%8s][%.3s]", null, nullptr, null), L"[(null)][  (null)][(nu]");
    EXPECT_EQ(FormatString(L"%s|%S|%s", "narrow", std::string("n2"), std::wstring_view(L"view!", 4)),
              L"narrow|n2|view");
    EXPECT_EQ(FormatString(L"[%-6.2s][%.9s][%.0s]", L"abcdef", L"abc", L"abc"), L"[ab    ][abc][]");
    EXPECT_EQ(FormatString(L"[%s]", std::wstring(L"a\0b", 3)), std::wstring(L"[a\0b]", 5));
    EXPECT_EQ(FormatString(L"[%s]", std::wstring_view()), L"[]");
    EXPECT_EQ(FormatString(L"%c%c%c|%3c|%-3c|", L'w', 'n', 65, L'r', L'l'), L"wnA|  r|l  |");
    EXPECT_EQ(FormatString(L"%c", '\xE4'), L"\x00E4");
    EXPECT_EQ(FormatString(L"<%c>", L'\0'), std::wstring(L"<\0>", 3));
    EXPECT_EQ(FormatString(L"%d", L'A'), L"65");
    // Neither is terminated: only the precision keeps the formatter inside.
    const char currency[3] = {'C', 'N', 'Y'};
    const wchar_t wide[2] = {L'o', L'k'};
    EXPECT_EQ(FormatString(L"%.3s %.2s", &currency[0], &wide[0]), L"CNY ok");
}

TEST(Format, SurvivesMismatches)
{
    EXPECT_EQ(FormatString(L"%s %d %c %x %5s", 7, L"text", L"more", CString(L"z"), -1), L"7 text more z    -1");
    EXPECT_EQ(FormatString(L"%s %s", L'w', kAllOnes), L"w 4294967295");
    EXPECT_EQ(FormatString(L"%.2d", L"text"), L"text");
    EXPECT_EQ(FormatString(L"%d %s %-5d|"), L"%d %s %-5d|");
    EXPECT_EQ(FormatString(L"%y %d %", 1), L"%y 1 %");
    EXPECT_EQ(FormatString(L"%n%-08.3l", 1), L"%n%-08.3l");
    EXPECT_EQ(FormatString(L"100%% %d", 1, 2, 3), L"100% 1");
    EXPECT_EQ(FormatString(L"%*d|%-*d|%*d|%.*s", 4, 1, 4, 1, -4, 1, 2, L"abc"), L"   1|1   |1   |ab");
    EXPECT_EQ(FormatString(L"%*d", L"x", 1), L"1");
    EXPECT_EQ(FormatString(L"%.*d", -3, 1), L"1");
    EXPECT_EQ(FormatString(L"%999999999999d", 1).size(), 32767u);
    EXPECT_EQ(FormatString(L"%.999999999999d", 1).size(), 32767u);
    EXPECT_EQ(FormatString(L"%*d", std::numeric_limits<std::int64_t>::min(), 1).size(), 32767u);
    EXPECT_EQ(FormatString(nullptr, 1), L"");
    EXPECT_EQ(FormatString(L"%p", reinterpret_cast<const void*>(std::uintptr_t{0xAB})),
              std::wstring(2 * sizeof(void*) - 2, L'0') + L"AB");
}

TEST(Format, AppendsAndTakesASpan)
{
    std::wstring out = L"> ";
    const FormatArg args[] = {1, L"two", std::wstring_view(L"three")};
    FormatTo(out, L"%d %s %s", std::span<const FormatArg>(args));
    FormatTo(out, L";%s", args[1]);
    EXPECT_EQ(out, L"> 1 two three;two");
}

#if !defined(_WIN32)

std::wstring SystemFormat(const wchar_t* format, ...)
{
    wchar_t buffer[256];
    std::va_list list;
    va_start(list, format);
    const int size = std::vswprintf(buffer, std::size(buffer), format, list);
    va_end(list);
    return size < 0 ? L"too long" : std::wstring(buffer, static_cast<std::size_t>(size));
}

TEST(Format, AgreesWithTheSystemOnEveryCombination)
{
    std::mt19937 random(1);
    const auto pick = [&](std::uint32_t count) { return static_cast<std::uint32_t>(random() % count); };
    const std::int32_t numbers[] = {0, 1, -1, 7, 8, 10, -10, 255, 65535, INT_MAX, INT_MIN, 123456};
    const wchar_t* const texts[] = {L"", L"a", L"some text", L"a text longer than any width that occurs"};
    for (int i = 0; i < 20000; ++i) {
        const wchar_t letter = L"diuxXosc"[pick(8)];
        const bool text = letter == L's' || letter == L'c';
        std::wstring flags;
        for (std::uint32_t n = pick(4); n != 0; --n) {
            flags += text ? L'-' : letter == L'd' || letter == L'i' ? L"-+ 0"[pick(4)] : L"-0#"[pick(3)];
        }
        if (letter == L'u') {
            std::erase(flags, L'#');
        }
        std::wstring head = L"<%" + flags + (pick(2) != 0 ? std::to_wstring(pick(30)) : L"");
        if (letter != L'c' && pick(2) != 0) {
            head += L"." + (pick(4) != 0 ? std::to_wstring(pick(14)) : L"");
        }
        const std::wstring ours = head + letter + L">";
        if (letter == L's') {
            const wchar_t* const argument = texts[pick(4)];
            ASSERT_EQ(FormatString(ours.c_str(), argument), SystemFormat((head + L"ls>").c_str(), argument)) << i;
        } else if (letter == L'c') {
            ASSERT_EQ(FormatString(ours.c_str(), L'Q'), SystemFormat((head + L"lc>").c_str(), L'Q')) << i;
        } else if (pick(2) != 0) {
            const std::int32_t argument = numbers[pick(std::size(numbers))];
            ASSERT_EQ(FormatString(ours.c_str(), argument), SystemFormat(ours.c_str(), argument)) << i;
        } else {
            const auto argument = static_cast<long long>(random()) * numbers[pick(std::size(numbers))];
            ASSERT_EQ(FormatString(ours.c_str(), argument),
                      SystemFormat((head + L"ll" + letter + L">").c_str(), argument))
                << i;
        }
    }
}

#endif

} // namespace
} // namespace wqspcfg
