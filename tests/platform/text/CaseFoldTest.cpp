#include "wqspcfg/platform/text/CaseFold.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#if defined(_WIN32)
#include "wqspcfg/platform/base/WinTypes.h"
#endif

namespace wqspcfg::test {

TEST(CaseFoldTest, MapsAsTheRegistryDoes)
{
    EXPECT_EQ(UpCase(L"azAZ09_{\u00e9\u00ff\u03c3\u0434\u1f80\u24d0\uff41"),
              L"AZAZ09_{\u00c9\u0178\u03a3\u0414\u1f88\u24b6\uff21");
    // One-way forms, forms of several characters and characters beyond U+FFFF stay.
    const std::wstring unmapped = L"\u00b5\u0131\u017f\u03c2\u00df\u0149\u1e9e\u4e2d\U00010428";
    EXPECT_EQ(UpCase(unmapped), unmapped);
}

#if defined(_WIN32)
TEST(CaseFoldTest, AgreesWithWindowsOnEveryCharacter)
{
    using Upcase = WCHAR(WINAPI*)(WCHAR);
    const auto upcase = reinterpret_cast<Upcase>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"ntdll"), "RtlUpcaseUnicodeChar")));
    ASSERT_TRUE(upcase);
    for (unsigned code = 0; code <= 0xFFFF; ++code) {
        const auto ch = static_cast<wchar_t>(code);
        ASSERT_EQ(UpCase(ch), upcase(ch)) << code;
    }
}
#endif

TEST(CaseFoldTest, ComparesInTheOrderOfCodeUnits)
{
    const std::wstring high(1, static_cast<wchar_t>(0xD83D));
    const std::vector<std::wstring> ordered = {
        L"",         L"A",          L"AB",          L"b",          L"B\\",
        L"Z",        L"_",          L"\u00e9",      L"\u4e2d",     high,
        high + L"A", L"\U0001F4B6", L"\U0001F4B6A", L"\U0001F4B7", high + L"\uF900",
        L"\uF900",   L"\uFFFD"};
    for (std::size_t i = 0; i < ordered.size(); ++i) {
        for (std::size_t j = 0; j < ordered.size(); ++j) {
            const auto order = CompareNoCase(ordered[i], ordered[j]);
            EXPECT_EQ(order < 0, i < j) << i << ' ' << j;
            EXPECT_EQ(order == 0, i == j) << i << ' ' << j;
        }
    }
}

TEST(CaseFoldTest, EqualNamesHashEqually)
{
    EXPECT_TRUE(EqualNoCase(L"BaudRate\u00e9", L"BAUDRATE\u00c9"));
    EXPECT_FALSE(EqualNoCase(L"BaudRate", L"BaudRate2"));
    EXPECT_EQ(HashNoCase(L"BaudRate\u00e9"), HashNoCase(L"baudrate\u00c9"));
    EXPECT_NE(HashNoCase(L"Light1"), HashNoCase(L"Light2"));
}

} // namespace wqspcfg::test
