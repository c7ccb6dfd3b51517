#include "wqspcfg/platform/text/Utf.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace wqspcfg::test {

namespace {

const std::wstring kHigh(1, static_cast<wchar_t>(0xD83D));
const std::wstring kLow(1, static_cast<wchar_t>(0xDCB6));

std::vector<std::byte> Utf16Le(std::wstring_view text)
{
    std::vector<std::byte> bytes;
    EXPECT_TRUE(AppendUtf16Le(text, bytes));
    return bytes;
}

} // namespace

TEST(UtfTest, EveryTextComesBackUnchanged)
{
    for (const auto& text :
         {std::wstring(), std::wstring(L"a\0b", 3), std::wstring(L"\x7f\u0080\u07ff\u0800\uffff\U00010000\U0010ffff"),
          std::wstring(L"\u65e0\u4eba\u503c\u5b88"), kHigh, kLow, kLow + kHigh, L"a" + kHigh + L"\U0001F4B6" + kLow}) {
        std::wstring back;
        EXPECT_TRUE(AppendWideFromUtf16Le(Utf16Le(text), back));
        EXPECT_EQ(back, text);

        std::u16string units;
        ASSERT_TRUE(AppendUtf16(text, units));
        EXPECT_EQ(Utf16Length(text), units.size());
        back.clear();
        AppendWide(units, back);
        EXPECT_EQ(back, text);

        std::string bytes;
        ASSERT_TRUE(AppendGeneralizedUtf8(text, bytes));
        back.clear();
        EXPECT_TRUE(AppendWideFromGeneralizedUtf8(bytes, back));
        EXPECT_EQ(back, text);

        bytes.clear();
        ASSERT_TRUE(AppendCesu8(text, bytes));
        back.clear();
        EXPECT_TRUE(AppendWideFromCesu8(bytes, back));
        EXPECT_EQ(back, text);
    }
}

TEST(UtfTest, WritesTheKnownForms)
{
    EXPECT_EQ(Utf16Le(kHigh + L"A").size(), 4U);
    EXPECT_EQ(Utf16Le(L"\U0001F4B6"),
              (std::vector<std::byte>{std::byte{0x3D}, std::byte{0xD8}, std::byte{0xB6}, std::byte{0xDC}}));
    std::string utf8;
    EXPECT_TRUE(AppendUtf8(L"A\u00e9\u4e2d\U0001F4B6", utf8));
    EXPECT_EQ(utf8, "A\xC3\xA9\xE4\xB8\xAD\xF0\x9F\x92\xB6");
    std::string cesu8;
    EXPECT_TRUE(AppendCesu8(L"\U0001F4B6", cesu8));
    EXPECT_EQ(cesu8, "\xED\xA0\xBD\xED\xB2\xB6");
    EXPECT_EQ(Utf8ForMessage(L"x" + kHigh + L"y"), "x\xEF\xBF\xBDy");
}

TEST(UtfTest, RefusesIllFormedText)
{
    std::wstring wide = L"kept";
    for (const auto* bytes : {"\x80", "\xC3", "\xC3(", "\xC0\xAF", "\xE0\x9F\xBF", "\xED\xA0\x80", "\xED\xB2\xB6",
                              "\xF0\x8F\xBF\xBF", "\xF4\x90\x80\x80", "\xF8\x88\x80\x80\x80", "ok\xFF", "\xE4\xB8"}) {
        EXPECT_FALSE(AppendWideFromUtf8(bytes, wide)) << bytes;
    }
    // A pair of surrogates written one by one is not the character that it stands for.
    EXPECT_FALSE(AppendWideFromGeneralizedUtf8("\xED\xA0\xBD\xED\xB2\xB6", wide));
    EXPECT_FALSE(AppendWideFromCesu8("\xF0\x9F\x92\xB6", wide));
    EXPECT_FALSE(AppendWideFromUtf16Le(std::vector<std::byte>(3), wide));
    EXPECT_EQ(wide, L"kept");

    std::string utf8 = "kept";
    EXPECT_FALSE(AppendUtf8(L"x" + kHigh, utf8));
    if constexpr (sizeof(wchar_t) > 2) {
        for (const auto& text : {L"x" + kHigh + kLow, std::wstring(1, static_cast<wchar_t>(0x110000)),
                                 std::wstring(1, static_cast<wchar_t>(-1))}) {
            std::vector<std::byte> bytes;
            EXPECT_FALSE(AppendUtf16Le(text, bytes));
            EXPECT_FALSE(AppendGeneralizedUtf8(text, utf8));
            EXPECT_FALSE(AppendCesu8(text, utf8));
            EXPECT_TRUE(bytes.empty());
        }
    }
    EXPECT_EQ(utf8, "kept");
}

} // namespace wqspcfg::test
