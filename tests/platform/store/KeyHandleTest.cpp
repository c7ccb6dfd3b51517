#include "wqspcfg/platform/store/KeyHandle.h"

#include "support/ConfigTest.h"

namespace {

using wqspcfg::KeyHandle;
using wqspcfg::KeyReader;
using wqspcfg::KeyWriter;
using wqspcfg::WriteScope;
using wqspcfg::test::ConfigTest;

class KeyHandleTest : public ConfigTest
{};

TEST_F(KeyHandleTest, OpensWhatExistsAndOnlyThat)
{
    KeyHandle handle;
    EXPECT_FALSE(handle.Open(Device(L"Missing")));
    EXPECT_EQ(handle.Get(), nullptr);
    Set(Device(L"Some"), L"Value", 7);
    ASSERT_TRUE(handle.Open(Device(L"Some")));
    const HKEY hKey = handle.Get();
    DWORD value = 0;
    EXPECT_TRUE(KeyReader(hKey).Query(L"Value", value));
    EXPECT_EQ(value, 7U);
    EXPECT_FALSE(KeyReader(hKey, L"Sub").Exists());
    EXPECT_FALSE(handle.Open(Device(L"Missing"))); // and closes what it held
    EXPECT_EQ(handle.Get(), nullptr);

    // A handle that is closed, or never was one, reaches nothing.
    for (const HKEY bad : {hKey, HKEY{}}) {
        EXPECT_FALSE(KeyReader(bad).Query(L"Value", value));
        KeyWriter writer(bad);
        EXPECT_FALSE(writer.Set(L"Value", DWORD{1}));
        EXPECT_FALSE(writer.Commit());
    }
    EXPECT_EQ(Number(Device(L"Some"), L"Value"), 7U);
}

TEST_F(KeyHandleTest, ReadsTheStateOfTheScopeAroundItAndJoinsItsWrites)
{
    Set(Device(L"Some"), L"Value", 1);
    KeyHandle handle;
    ASSERT_TRUE(handle.Open(Device(L"Some")));
    ClearRecord();
    {
        WriteScope scope;
        KeyWriter(handle.Get()).Set(L"Value", DWORD{2});
        KeyWriter(handle.Get(), L"Sub").Set(L"Text", CString(L"x"));
        DWORD value = 0;
        KeyReader(handle.Get()).Query(L"Value", value);
        EXPECT_EQ(value, 2U);
        EXPECT_EQ(Commits(), 0U);
    }
    EXPECT_EQ(Commits(), 1U);
    EXPECT_EQ(Text(Device(L"Some\\Sub"), L"Text"), L"x");
}

} // namespace
