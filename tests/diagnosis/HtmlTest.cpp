#include "wqspcfg/diagnosis/report/Html.h"

#include "wqspcfg/platform/text/Utf.h"

#include <gtest/gtest.h>

namespace wqspcfg::diagnosis {

namespace {

std::string Built(std::wstring_view text)
{
    Html page;
    page << text;
    return page.Take();
}

std::string BuiltAttribute(std::string_view text)
{
    Html page;
    page << Attribute{"title"_html, text};
    return page.Take();
}

TEST(HtmlTest, TextOfStrangersIsNoMarkup)
{
    EXPECT_EQ(Built(L"<script>alert(1)</script>"), "&lt;script&gt;alert(1)&lt;/script&gt;");
    EXPECT_EQ(Built(L"\" onclick='x' &amp;"), "&quot; onclick=&#39;x&#39; &amp;amp;");
    EXPECT_EQ(BuiltAttribute("\"><script>'&"), " title=\"&quot;&gt;&lt;script&gt;&#39;&amp;\"");
    // A literal in a string is text, and only a literal of the source is markup.
    Html page;
    page << "<b>"_html << std::string_view("<i>") << "</b>"_html;
    EXPECT_EQ(page.Take(), "<b>&lt;i&gt;</b>");
    EXPECT_EQ(page.Take(), "") << "what was taken is gone";
}

TEST(HtmlTest, WhatCannotBeSeenIsNamed)
{
    const auto shown = [](const char* point) { return "<span class=\"code-point\">" + std::string(point) + "</span>"; };
    EXPECT_EQ(Built(L"a\x1B[31m"), "a" + shown("U+001B") + "[31m");
    EXPECT_EQ(Built(std::wstring_view(L"\0\t\r\n\x7F", 5)),
              shown("U+0000") + shown("U+0009") + shown("U+000D") + shown("U+000A") + shown("U+007F"));
    EXPECT_EQ(Built(L"\u202Egnp\u2066\u200F"), shown("U+202E") + "gnp" + shown("U+2066") + shown("U+200F"));
    // A stored text that looks like one of these is told from it.
    EXPECT_EQ(Built(L"<U+001B>"), "&lt;U+001B&gt;");
    EXPECT_EQ(BuiltAttribute("a\nb"), " title=\"a&lt;U+000A&gt;b\"");
}

TEST(HtmlTest, APageIsWellFormedUtf8)
{
    const std::wstring lone{L'x', static_cast<wchar_t>(0xD800), static_cast<wchar_t>(0xDC00 - 1), L'y',
                            static_cast<wchar_t>(0xDFFF)};
    std::wstring back;
    for (const auto& text : {Built(lone), Built(L"回收箱 \U0001F600")}) {
        EXPECT_TRUE(AppendWideFromUtf8(text, back)) << text;
    }
    EXPECT_NE(Built(lone).find("U+D800"), std::string::npos);
    EXPECT_NE(Built(lone).find("U+DFFF"), std::string::npos);
    EXPECT_EQ(Built(L"回 \U0001F600"), "回 \xF0\x9F\x98\x80");
    Html page;
    page << std::string_view("\xC3\xA9 \xE9 \xED\xA0\x80<");
    EXPECT_EQ(page.Take(), "é &lt;0xE9&gt; &lt;0xED&gt;&lt;0xA0&gt;&lt;0x80&gt;&lt;");
}

TEST(HtmlTest, LargeNumbersAreGrouped)
{
    EXPECT_EQ(Grouped(0), "0");
    EXPECT_EQ(Grouped(999), "999");
    EXPECT_EQ(Grouped(1000), "1,000");
    EXPECT_EQ(Grouped(1048576), "1,048,576");
}

} // namespace

} // namespace wqspcfg::diagnosis
