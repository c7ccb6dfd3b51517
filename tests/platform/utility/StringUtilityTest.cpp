#include "wqspcfg/platform/utility/StringUtility.h"

#include <gtest/gtest.h>
#include <limits>

namespace {

std::wstring Split(LPCWSTR text, wchar_t sep)
{
    CStringArray parts;
    parts.Add(L"left over");
    const int count = CStringUtility::SplitString(parts, text, sep);
    EXPECT_EQ(count, parts.GetSize());
    return wqspcfg::FormatString(L"%d:", count) + CStringUtility::CombineString(parts, L'|').Std();
}

TEST(StringUtility, SplitsAtEverySeparatorAndJoinsAgain)
{
    EXPECT_EQ(Split(L"", L';'), L"0:");
    EXPECT_EQ(Split(L"one", L';'), L"1:one");
    EXPECT_EQ(Split(L"a; b;c ", L';'), L"3:a| b|c ");
    EXPECT_EQ(Split(L";a;;", L';'), L"4:|a||");
    EXPECT_EQ(Split(L"key=value=x", L'='), L"3:key|value|x");
    EXPECT_EQ(Split(L"=", L'='), L"2:|");
}

TEST(StringUtility, AtoiTakesWholeNumbersOnly)
{
    struct Case
    {
        LPCWSTR text;
        unsigned char radix;
        int expected;
    };
    for (const Case& c :
         {Case{L"0", 10, 0}, Case{L" -12 ", 10, -12}, Case{L"+7", 10, 7}, Case{L"ff", 16, 255}, Case{L"0xFf", 16, 255},
          Case{L"-0x10", 16, -16}, Case{L"777", 8, 511}, Case{L"z", 36, 35},
          Case{L"2147483647", 10, std::numeric_limits<int>::max()},
          Case{L"-2147483648", 10, std::numeric_limits<int>::min()}, Case{L"0000000000000001", 10, 1}}) {
        int out = 1234;
        EXPECT_TRUE(CStringUtility::atoi(out, c.text, c.radix)) << CString(c.text).GetLength();
        EXPECT_EQ(out, c.expected);
    }
    for (const Case& c : {Case{L"", 10, 0}, Case{L"  ", 10, 0}, Case{L"-", 10, 0}, Case{L"1x", 10, 0},
                          Case{L"1 2", 10, 0}, Case{L"- 1", 10, 0}, Case{L"+-1", 10, 0}, Case{L"0x", 16, 0},
                          Case{L"0x10", 10, 0}, Case{L"8", 8, 0}, Case{L"2147483648", 10, 0},
                          Case{L"-2147483649", 10, 0}, Case{L"ffffffff", 16, 0}, Case{L"18446744073709551617", 10, 0},
                          Case{L"1", 1, 0}, Case{L"1", 0, 0}, Case{L"1", 37, 0}, Case{L"\xFF11", 10, 0}}) {
        int out = 1234;
        EXPECT_FALSE(CStringUtility::atoi(out, c.text, c.radix)) << wqspcfg::FormatString(L"%s", c.text).size();
        EXPECT_EQ(out, 1234);
    }
}

TEST(StringUtility, ParseDecimalTakesWhatItCan)
{
    using wqspcfg::ParseDecimal;
    EXPECT_EQ(ParseDecimal(L" \t-12abc"), -12);
    EXPECT_EQ(ParseDecimal(L"0x10"), 0);
    EXPECT_EQ(ParseDecimal(L"abc") + ParseDecimal(L"") + ParseDecimal(L"-") + ParseDecimal(L"- 1"), 0);
    EXPECT_EQ(ParseDecimal(L"99999999999999999999999"), std::numeric_limits<LONG>::max());
    EXPECT_EQ(ParseDecimal(L"-99999999999999999999999"), std::numeric_limits<LONG>::min());
    EXPECT_EQ(ParseDecimal(std::wstring_view(L"123", 2)), 12);
}

} // namespace
