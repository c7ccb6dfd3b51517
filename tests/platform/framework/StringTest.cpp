#include "wqspcfg/platform/framework/String.h"

#include <functional>
#include <gtest/gtest.h>

namespace {

TEST(String, NullIsEmptyAndEmbeddedNulsSurvive)
{
    const LPCWSTR null = nullptr;
    CString text(null);
    EXPECT_TRUE(text.IsEmpty());
    EXPECT_TRUE(text == null);
    EXPECT_STREQ(text, L"");
    text += null;
    EXPECT_EQ((text + null).GetLength(), 0);

    const CString nul(std::wstring_view(L"a\0b", 3));
    EXPECT_EQ(nul.GetLength(), 3);
    EXPECT_EQ((nul + nul).GetLength(), 6);
    EXPECT_FALSE(nul == L"a");
    EXPECT_EQ(nul.Find(L'b'), 2);
    EXPECT_EQ(CString(nul).Std(), nul.Std());
}

TEST(String, ComparesAndJoinsWithEveryKindOfText)
{
    const CString a(L"alpha");
    const CString b(L"beta");
    EXPECT_TRUE(a == L"alpha" && L"alpha" == a && a == std::wstring(L"alpha") && a != b && a != L"beta" && L"x" != a);
    EXPECT_TRUE(a < b && a < L"beta" && L"beta" > a && b > L"alpha" && a <= a && L"B" < a);
    EXPECT_EQ((L"<" + a + L'|' + b + L">").Std(), L"<alpha|beta>");
    EXPECT_EQ((L'<' + a).Std(), L"<alpha");
    CString self(L"ab");
    self += self;
    self += self.GetString();
    EXPECT_EQ(self.Std(), L"abababab");
    EXPECT_EQ(std::hash<CString>()(a), std::hash<CString>()(CString(L"alpha")));
    EXPECT_EQ(CString(L'-', 3).Std(), L"---");
    EXPECT_EQ(CString(L'-', -3).Std(), L"");
}

TEST(String, SubscriptTakesAnyIntegerAndRefusesWhatIsOutside)
{
    const CString text(L"abc");
    EXPECT_EQ(text[0], L'a');
    EXPECT_EQ(text[std::size_t{2}], L'c');
    EXPECT_EQ(text[3u], L'\0');
    EXPECT_THROW((void)text[4], CInvalidArgException);
    EXPECT_THROW((void)text[-1], CInvalidArgException);
    EXPECT_THROW((void)text[std::size_t{1} << 31], CInvalidArgException);
    EXPECT_THROW(CString(text).SetAt(3, L'x'), CInvalidArgException);
}

TEST(String, CutsAndFindsWithinTheText)
{
    const CString path(L"C:\\SP\\bin\\SP.dll");
    EXPECT_EQ(path.Left(path.Find(L'\\')).Std(), L"C:");
    EXPECT_EQ(path.Mid(path.ReverseFind(L'\\') + 1).Std(), L"SP.dll");
    EXPECT_EQ(path.Right(4).Std(), L".dll");
    EXPECT_EQ(path.Find(L"SP", 4), 10);
    EXPECT_EQ(path.Find(L"sp"), -1);
    EXPECT_EQ(path.Find(L"SP", 100), -1);
    EXPECT_EQ(path.Find(L'C', -1), -1);
    EXPECT_EQ(path.Mid(3, 2).Std(), L"SP");
    EXPECT_EQ(path.Mid(100, 5).Std() + path.Mid(-1, -1).Std() + path.Left(-2).Std() + path.Right(-1).Std(), L"");
    EXPECT_EQ(path.Left(100).Std() + path.Right(100).Std(), path.Std() + path.Std());
}

TEST(String, ChangesInPlace)
{
    CString text(L" \t some  text\r\n");
    EXPECT_EQ(CString(text).TrimLeft().Std(), L"some  text\r\n");
    EXPECT_EQ(CString(text).TrimRight().Std(), L" \t some  text");
    EXPECT_EQ(text.Trim().Std(), L"some  text");
    EXPECT_EQ(CString(L" \n ").Trim().Std(), L"");
    EXPECT_EQ(CString(L"//a/b/").Trim(L'/').Std(), L"a/b");
    EXPECT_EQ(text.Replace(L"e", L"ee"), 2);
    EXPECT_EQ(text.Std(), L"somee  teext");
    EXPECT_EQ(text.Replace(L"", L"x"), 0);
    EXPECT_EQ(text.Replace(L'e', L'-'), 4);
    EXPECT_EQ(text.Remove(L'-'), 4);
    EXPECT_EQ(text.Std(), L"som  txt");
    EXPECT_EQ(CString(L"aaaa").Replace(L"aa", L"a"), 2);
    EXPECT_EQ(text.MakeUpper().Std(), L"SOM  TXT");
    EXPECT_EQ(text.MakeLower().Std(), L"som  txt");
    text.Format(L"%s-%d", text, 7);
    text.AppendFormat(L"|%s", text);
    EXPECT_EQ(text.Std(), L"som  txt-7|som  txt-7");
}

TEST(String, ComparesWithAndWithoutCase)
{
    EXPECT_EQ(CString(L"Sp.EXE").CompareNoCase(L"sP.exe"), 0);
    EXPECT_EQ(CString(L"Ger\xE4t").CompareNoCase(L"GER\xC4T"), 0);
    EXPECT_LT(CString(L"a").CompareNoCase(L"B"), 0);
    EXPECT_GT(CString(L"a").Compare(L"B"), 0);
    EXPECT_GT(CString(L"ab").CompareNoCase(L"A"), 0);
    EXPECT_LT(CString(L"").CompareNoCase(L"a"), 0);
    EXPECT_EQ(CString().CompareNoCase(nullptr), 0);
}

} // namespace
