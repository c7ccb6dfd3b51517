#include "wqspcfg/platform/text/CodePage.h"

#include <gtest/gtest.h>

namespace wqspcfg {

namespace {

std::u16string Decoded(unsigned number, std::string_view bytes)
{
    const auto page = CodePage::Open(number);
    std::u16string units = u"-";
    return page == nullptr ? u"unknown" : page->Append(bytes, units) ? units : units + u"refused";
}

} // namespace

TEST(CodePageTest, TextIsDecodedAsWindowsDoes)
{
    // The last byte of that character is a backslash in ASCII.
    EXPECT_EQ(Decoded(936, "\xd6\xd0\xce\xc4 \xd5\x5c"), u"-\u4e2d\u6587 \u8aa0");
    EXPECT_EQ(Decoded(1252, "100 \x80 \xe9"), u"-100 \u20ac \u00e9");
    EXPECT_EQ(Decoded(28591, "\x80\xff"), u"-\u0080\u00ff");
    EXPECT_EQ(Decoded(65001, "\xf0\x9f\x92\xb6"), u"-\U0001F4B6");
#if !defined(_WIN32) // Wine does not know it
    EXPECT_EQ(Decoded(54936, "\x94\x39\xda\x33"), u"-\U0001F4A9");
#endif
    EXPECT_EQ(Decoded(936, ""), u"-");
}

TEST(CodePageTest, WhatIsNoTextOfItIsRefused)
{
    EXPECT_EQ(Decoded(936, "a\xd6"), u"-refused");
    EXPECT_EQ(Decoded(65001, "a\xe9"), u"-refused");
    for (const auto number : {0U, 37U, 1200U, 65000U, 99999U}) {
        EXPECT_EQ(Decoded(number, "a"), u"unknown") << number;
    }
    // A refused text leaves nothing behind.
    const auto page = CodePage::Open(936);
    std::u16string units;
    EXPECT_FALSE(page->Append("\xd6", units));
    EXPECT_TRUE(page->Append("\xd0\xd0", units));
    EXPECT_EQ(units, u"\u884c");
}

} // namespace wqspcfg
