#include "wqspcfg/core/RegKeyEx.h"

#include "support/ConfigTest.h"
#include "wqspcfg/platform/store/Session.h"

namespace {

using wqspcfg::ReadScope;
using wqspcfg::WriteScope;
using wqspcfg::test::ConfigTest;

class RegKeyExTest : public ConfigTest
{
  protected:
    static constexpr wchar_t kRoot[] = L"SOFTWARE\\XFS\\PHYSICAL_SERVICES\\";
};

TEST_F(RegKeyExTest, AMissingValueReturnsZeroAndLeavesTheOutput)
{
    DWORD number = 42;
    CString text(L"kept");
    EXPECT_EQ(CRegKeyEx::QueryValue(number, L"No", L"%s%s", kRoot, L"Nowhere"), 0);
    EXPECT_EQ(CRegKeyEx::QueryValue(text, L"No", L"%s%s", kRoot, L"Nowhere"), 0);
    // So does a value of the other type.
    Set(Device(), L"Number", 1);
    Set(Device(), L"Text", L"x");
    EXPECT_EQ(CRegKeyEx::QueryValue(number, L"Text", L"%s%s", kRoot, L"Dev"), 0);
    EXPECT_EQ(CRegKeyEx::QueryValue(text, L"Number", L"%s%s", kRoot, L"Dev"), 0);
    EXPECT_EQ(number, 42U);
    EXPECT_EQ(text, L"kept");
}

TEST_F(RegKeyExTest, NamesCompareWithoutCaseAndPathsMayEndWithABackslash)
{
    ASSERT_NE(CRegKeyEx::SetValue(7, L"Value", L"%s%s\\Control\\", kRoot, L"Dev"), 0);
    DWORD number = 0;
    EXPECT_NE(CRegKeyEx::QueryValue(number, L"VALUE", L"%s%s\\control", kRoot, L"dev"), 0);
    EXPECT_EQ(number, 7U);
    CStringArray names;
    EXPECT_NE(CRegKeyEx::EnumSubKeyName(names, L"%s%s", kRoot, L"Dev"), 0);
    ASSERT_EQ(names.GetSize(), 1);
    EXPECT_EQ(names[0], L"Control");
    EXPECT_EQ(CRegKeyEx::EnumSubKeyName(names, L"%s%s", kRoot, L"Nowhere"), 0);
    EXPECT_EQ(names.GetSize(), 0);
}

TEST_F(RegKeyExTest, WholeKeysGoIntoMaps)
{
    CMapStringToString values;
    values.SetAt(L"a", L"1");
    values.SetAt(L"b", L"2");
    ASSERT_NE(CRegKeyEx::SetValues(values, L"%s%s\\Map", kRoot, L"Dev"), 0);
    Set(Device(L"Map"), L"n", 3);
    CMapStringToString read;
    read.SetAt(L"stays", L"x");
    EXPECT_NE(CRegKeyEx::QueryValues(read, L"%s%s\\Map", kRoot, L"Dev"), 0);
    EXPECT_EQ(read.GetCount(), 3);
    CMap<CString, LPCWSTR, DWORD, DWORD> numbers;
    EXPECT_NE(CRegKeyEx::QueryValues(numbers, L"%s%s\\Map", kRoot, L"Dev"), 0);
    EXPECT_EQ(numbers.GetCount(), 1);
    EXPECT_EQ(CRegKeyEx::QueryValues(read, L"%s%s\\NoMap", kRoot, L"Dev"), 0);
}

TEST_F(RegKeyExTest, AWriteScopeIsOneCommitThatNestedScopesJoin)
{
    ClearRecord();
    {
        const WriteScope outer;
        CRegKeyEx::SetValue(1, L"A", L"%s%s", kRoot, L"Dev");
        {
            const WriteScope inner;
            CRegKeyEx::SetValue(2, L"B", L"%s%s", kRoot, L"Dev");
        }
        EXPECT_EQ(Commits(), 0U);
        EXPECT_EQ(Number(Device(), L"B"), 2U); // its own writes are seen
    }
    EXPECT_EQ(Commits(), 1U);
    EXPECT_EQ(Number(Device(), L"A"), 1U);
}

TEST_F(RegKeyExTest, AWriteScopeFindsAKeyThatItMissedAndThenCreated)
{
    Set(Device(), L"A", 1);
    const WriteScope scope;
    CStringArray names;
    CMap<CString, LPCWSTR, DWORD, DWORD> values;
    EXPECT_EQ(CRegKeyEx::EnumSubKeyName(names, L"%s%s\\Units", kRoot, L"Dev"), 0);
    EXPECT_EQ(CRegKeyEx::QueryValues(values, L"%s%s\\units\\ONE\\", kRoot, L"Dev"), 0);
    Set(Device(L"Units\\One"), L"Count", 5);
    EXPECT_NE(CRegKeyEx::EnumSubKeyName(names, L"%s%s\\Units", kRoot, L"Dev"), 0);
    EXPECT_EQ(names.GetSize(), 1);
    EXPECT_NE(CRegKeyEx::QueryValues(values, L"%s%s\\units\\ONE\\", kRoot, L"Dev"), 0);
    EXPECT_EQ(values.GetCount(), 1);
}

// A key that is asked for a value before anything else is not looked for until that is needed.
TEST_F(RegKeyExTest, AKeyThatWasAskedFirstIsFoundOnceItExists)
{
    using wqspcfg::Outcome;
    wqspcfg::Error error;
    wqspcfg::SetCurrentStore(wqspcfg::OpenStore("memory:", {}, error));
    const auto ask = [](wqspcfg::Session& session, const std::wstring& path) {
        wqspcfg::ValueView value;
        return session.Query(session.Open(path), L"v", value);
    };
    {
        const WriteScope scope;
        EXPECT_EQ(ask(*scope, Device(L"One\\Two")), Outcome::Missing);
        EXPECT_FALSE(scope->Exists(scope->Open(Device(L"One"))));
        Set(Device(L"ONE\\two\\"), L"V", 1);
        EXPECT_EQ(ask(*scope, Device(L"One\\Two")), Outcome::Found);
        EXPECT_TRUE(scope->Exists(scope->Open(Device(L"One"))));
        EXPECT_EQ(ask(*scope, Device(L"One")), Outcome::Missing);
        // Both spellings write to the one key.
        Set(Device(L"One\\Two"), L"v", 2);
        EXPECT_EQ(Number(Device(L"ONE\\two\\"), L"v"), 2U);
    }
    const ReadScope outer;
    EXPECT_EQ(ask(*outer, Device(L"One\\Two")), Outcome::Found);
    EXPECT_EQ(ask(*outer, Device(L"New")), Outcome::Missing);
    {
        const WriteScope inner;
        EXPECT_EQ(ask(*inner, Device(L"New")), Outcome::Missing);
        Set(Device(L"new"), L"v", 3);
        EXPECT_EQ(ask(*inner, Device(L"New")), Outcome::Found);
    }
    EXPECT_EQ(ask(*outer, Device(L"New")), Outcome::Found);
    {
        const WriteScope failing;
        Set(Device(L"Newer"), L"v", 4);
        failing->Refuse({wqspcfg::ErrorKind::Io, "full"});
    }
    EXPECT_EQ(ask(*outer, Device(L"Newer")), Outcome::Missing);
    wqspcfg::ClearStoreError();
    // A key that no store can hold is a failure, and stays missing.
    EXPECT_EQ(ask(*outer, Device(std::wstring(1, L'\0'))), Outcome::Missing);
    EXPECT_EQ(wqspcfg::LastStoreError().kind, wqspcfg::ErrorKind::BadText);
    wqspcfg::ClearStoreError();
}

TEST_F(RegKeyExTest, AReadScopeSeesOneStateAndWhatItsThreadWrites)
{
    Set(Device(), L"A", 1);
    const ReadScope scope;
    EXPECT_EQ(Number(Device(), L"A"), 1U);
    wqspcfg::Error error;
    {
        auto other = m_store->Begin(wqspcfg::Access::Write, error);
        wqspcfg::KeyId key = 0;
        ASSERT_EQ(other->CreateKey(wqspcfg::Hive::LocalMachine, Device(), key), wqspcfg::Outcome::Found);
        const std::byte two[4] = {std::byte{2}};
        other->SetValue(key, L"A", {wqspcfg::ValueType::Dword, two});
        other->Commit(false);
    }
    EXPECT_EQ(Number(Device(), L"A"), 1U); // another's write is not seen
    Set(Device(L"New"), L"B", 5);
    EXPECT_EQ(Number(Device(L"New"), L"B"), 5U); // its own is, in a key that did not exist too
    EXPECT_EQ(Number(Device(L"new"), L"b"), 5U);
    EXPECT_EQ(Number(Device(L"New\\"), L"B"), 5U);
    Set(Device(L"\\New\\"), L"B", 6); // the same key
    EXPECT_EQ(Number(Device(L"New"), L"B"), 6U);
}

TEST_F(RegKeyExTest, AnExceptionEndsAWriteScopeWithoutAWrite)
{
    try {
        const WriteScope scope;
        Set(Device(), L"Half", 1);
        throw 1;
    } catch (int) {
    }
    EXPECT_FALSE(Number(Device(), L"Half"));
    EXPECT_TRUE(wqspcfg::LastStoreError());
    wqspcfg::ClearStoreError();
    Set(Device(), L"Whole", 2);
    EXPECT_EQ(Number(Device(), L"Whole"), 2U);
}

TEST_F(RegKeyExTest, AFailedWriteCountsForTheReadScopeAroundIt)
{
    const ReadScope scope;
    const CString name(std::wstring_view(L"a\0b", 3)); // no store can keep this name
    EXPECT_EQ(CRegKeyEx::SetValue(1, name, L"%s%s", kRoot, L"Dev"), 0);
    EXPECT_TRUE(scope->Failure());
}

TEST_F(RegKeyExTest, IllFormedTextIsRefusedAndTheScopeWritesNothing)
{
    if (sizeof(wchar_t) == 2) {
        GTEST_SKIP() << "every wide text is well-formed here";
    }
    const std::wstring bad = {wchar_t(0xD83D), wchar_t(0xDE00)};
    {
        const WriteScope scope;
        Set(Device(), L"Good", 1);
        EXPECT_EQ(CRegKeyEx::SetValue(CString(bad), L"Bad", L"%s%s", kRoot, L"Dev"), 0);
    }
    EXPECT_EQ(wqspcfg::LastStoreError().kind, wqspcfg::ErrorKind::BadText);
    EXPECT_FALSE(Number(Device(), L"Good"));
}

#if !defined(_WIN32)
TEST_F(RegKeyExTest, AStoreThatCannotBeOpenedIsToldApartFromMissingValues)
{
    wqspcfg::Error error;
    wqspcfg::SetCurrentStore(nullptr);
    ASSERT_EQ(setenv("WQSPCFG_STORE", "lmdb:/nonexistent/store", 1), 0);
    DWORD number = 3;
    EXPECT_EQ(CRegKeyEx::QueryValue(number, L"x", L"%s%s", kRoot, L"Dev"), 0);
    EXPECT_EQ(number, 3U);
    EXPECT_NE(wqspcfg::LastStoreError().message.find("/nonexistent/store"), std::string::npos);
    CRegInfo config(L"Phys", true);
    EXPECT_TRUE(config.Load(&m_log));
    ASSERT_FALSE(m_log.Entries().empty());
    EXPECT_EQ(m_log.Entries().back().severity, wqspcfg::Severity::Error);
    EXPECT_NE(m_log.Entries().back().text.find(L"/nonexistent/store"), std::wstring::npos);
    unsetenv("WQSPCFG_STORE");
}
#endif

} // namespace
