#include "wqspcfg/platform/text/DisplayText.h"

#include <gtest/gtest.h>

namespace wqspcfg {

TEST(DisplayTextTest, NothingReachesTheTerminalButText)
{
    EXPECT_EQ(DisplayText(L"a\tb\r\nc\x1b[31m\x7f"), "a<U+0009>b<U+000D><U+000A>c<U+001B>[31m<U+007F>");
    EXPECT_EQ(DisplayText(std::wstring_view(L"\0\x85\x9b", 3)), "<U+0000><U+0085><U+009B>");
    EXPECT_EQ(DisplayText(L"\x061C\x200F\x2028\x202E\x2066x"), "<U+061C><U+200F><U+2028><U+202E><U+2066>x");
    EXPECT_EQ(DisplayText(std::wstring{L'a', static_cast<wchar_t>(0xD83D), L'b'}), "a<U+D83D>b");
    EXPECT_EQ(DisplayText(std::wstring{static_cast<wchar_t>(0xDC00)}), "<U+DC00>");
    // What people write stays as it is.
    EXPECT_EQ(DisplayText(L"C:\\new \"\u4e2d\u6587\" \u00e9 \U0001F4B6"),
              "C:\\new \"\xe4\xb8\xad\xe6\x96\x87\" \xc3\xa9 \xf0\x9f\x92\xb6");

    EXPECT_EQ(DisplayText("\xe4\xb8\xad \xf0\x9f\x92\xb6\x1b]0;x\x07\xe2\x80\xae"),
              "\xe4\xb8\xad \xf0\x9f\x92\xb6<U+001B>]0;x<U+0007><U+202E>");
    EXPECT_EQ(DisplayText("caf\xe9 \xc2\x9b \xe4\xb8"), "caf<0xE9> <U+009B> <0xE4><0xB8>");
}

} // namespace wqspcfg
