#include "wqspcfg/platform/text/NarrowText.h"

#include <gtest/gtest.h>
#include <random>

namespace wqspcfg {
namespace {

TEST(NarrowText, KeepsAsciiAndNuls)
{
    EXPECT_EQ(WideToNarrow(L"Card 1"), "Card 1");
    EXPECT_EQ(NarrowToWide(std::string_view("a\0b", 3)), std::wstring(L"a\0b", 3));
    EXPECT_EQ(WideToNarrow(L"") + WideToNarrow({}), "");
    EXPECT_EQ(NarrowToWide({}), L"");
}

#if !defined(_WIN32)

TEST(NarrowText, IsUtf8)
{
    const std::wstring wide = L"\x7F\x80\x7FF\x800\x5361\xFFFF\x10000\x10FFFF";
    const std::string narrow =
        "\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80\xE5\x8D\xA1\xEF\xBF\xBF\xF0\x90\x80\x80\xF4\x8F\xBF\xBF";
    EXPECT_EQ(WideToNarrow(wide), narrow);
    EXPECT_EQ(NarrowToWide(narrow), wide);
}

TEST(NarrowText, EscapesIllFormedBytes)
{
    EXPECT_EQ(NarrowToWide("a\xFFz"), L"a\xDCFFz");
    EXPECT_EQ(NarrowToWide("\xC0\xAF"), L"\xDCC0\xDCAF");                     // overlong
    EXPECT_EQ(NarrowToWide("\xE0\x9F\xBF"), L"\xDCE0\xDC9F\xDCBF");           // overlong
    EXPECT_EQ(NarrowToWide("\xED\xA0\x80"), L"\xDCED\xDCA0\xDC80");           // a surrogate
    EXPECT_EQ(NarrowToWide("\xF4\x90\x80\x80"), L"\xDCF4\xDC90\xDC80\xDC80"); // above U+10FFFF
    EXPECT_EQ(NarrowToWide("\xE5\x8D"), L"\xDCE5\xDC8D");                     // cut short
    EXPECT_EQ(NarrowToWide("\xE5\x8D\xE5\x8D\xA1"), L"\xDCE5\xDC8D\x5361");
}

TEST(NarrowText, BringsAnyBytesBack)
{
    std::mt19937 random(1);
    const std::string_view likely = "\x80\xBF\xC2\xE0\xE5\xED\xF0\xF4\x8D\xA1\x90z";
    for (int i = 0; i < 20000; ++i) {
        std::string bytes;
        for (std::size_t n = random() % 9; n != 0; --n) {
            bytes += random() % 4 == 0 ? static_cast<char>(random()) : likely[random() % likely.size()];
        }
        ASSERT_EQ(WideToNarrow(NarrowToWide(bytes)), bytes) << i;
    }
}

TEST(NarrowText, ReplacesIllFormedWideText)
{
    EXPECT_EQ(WideToNarrow(L"\xD800"), "\xEF\xBF\xBD");
    EXPECT_EQ(WideToNarrow(L"\xDC7F\xDD00"), "\xEF\xBF\xBD\xEF\xBF\xBD");
    EXPECT_EQ(WideToNarrow(std::wstring(1, static_cast<wchar_t>(0x110000))), "\xEF\xBF\xBD");
    EXPECT_EQ(WideToNarrow(std::wstring(1, static_cast<wchar_t>(-1))), "\xEF\xBF\xBD");
}

#endif

} // namespace
} // namespace wqspcfg
