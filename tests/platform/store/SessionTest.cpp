#include "wqspcfg/platform/store/Session.h"
#include "support/StoreTesting.h"

namespace wqspcfg::test {

namespace {

class SessionTest : public testing::Test
{
  protected:
    SessionTest() { SetCurrentStore(Open("memory:")); }
    ~SessionTest() override { SetCurrentStore(nullptr); }

    static void Write(std::wstring_view path, std::wstring_view name, std::uint32_t number)
    {
        WriteScope scope;
        const auto bytes = DwordBytes(number);
        EXPECT_EQ(scope->Set(scope->Open(path), name, {ValueType::Dword, bytes}), Outcome::Found);
        EXPECT_TRUE(scope.Commit());
    }

    // "name=number ..." of up to `most` values.
    static std::wstring Values(Session& session, std::wstring_view path, int most = 100)
    {
        std::wstring text;
        EXPECT_EQ(session.EnumValues(session.Open(path),
                                     [&](std::wstring_view name, const ValueView& value) {
                                         text += name;
                                         text += L'=' + std::to_wstring(static_cast<int>(value.data[0])) + L' ';
                                         return --most > 0;
                                     }),
                  Outcome::Found);
        return text;
    }

    static std::wstring Keys(Session& session, std::wstring_view path, int most = 100)
    {
        std::wstring text;
        EXPECT_EQ(session.EnumKeys(session.Open(path),
                                   [&](std::wstring_view name) {
                                       text += name;
                                       text += L' ';
                                       return --most > 0;
                                   }),
                  Outcome::Found);
        return text;
    }
};

} // namespace

TEST_F(SessionTest, EnumerationsSeeWhatTheirOwnThreadHasWrittenMeanwhile)
{
    Write(L"A", L"b", 1);
    Write(L"A", L"d", 1);
    Write(L"A\\K2", L"x", 1);
    const ReadScope scope;
    EXPECT_EQ(Values(*scope, L"A"), L"b=1 d=1 ");
    Write(L"a\\", L"D", 2);
    Write(L"A", L"", 2);
    Write(L"A", L"c", 2);
    Write(L"A", L"E", 2);
    Write(L"A", L"c", 3);
    Write(L"A\\k1\\deeper", L"x", 2);
    Write(L"A\\k2", L"y", 2);
    Write(L"A\\K3", L"x", 2);
    Write(L"New\\Below", L"x", 2);
    EXPECT_EQ(Values(*scope, L"A"), L"=2 b=1 c=3 d=2 E=2 ");
    EXPECT_EQ(Keys(*scope, L"A"), L"k1 K2 K3 ");
    EXPECT_EQ(Values(*scope, L"New\\Below"), L"x=2 "); // a key that the store's state does not have
    EXPECT_EQ(Keys(*scope, L"new"), L"Below ");
    EXPECT_EQ(Keys(*scope, L"A\\k1"), L"deeper ");
    for (int most = 1; most <= 4; ++most) {
        const auto values = Values(*scope, L"A", most);
        EXPECT_EQ(std::count(values.begin(), values.end(), L' '), most);
    }
    EXPECT_EQ(Keys(*scope, L"A", 2), L"k1 K2 ");
}

} // namespace wqspcfg::test
