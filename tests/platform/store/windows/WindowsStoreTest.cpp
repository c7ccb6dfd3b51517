// The views of the registry that a 64-bit Windows gives to 32- and 64-bit programs.
#include "wqspcfg/platform/base/WinTypes.h"

#include "support/StoreTesting.h"
#include "wqspcfg/core/RegKeyEx.h"
#include "wqspcfg/platform/store/Session.h"

namespace wqspcfg::test {

namespace {

constexpr std::wstring_view kKey = L"SOFTWARE\\WQSpCfgViews";
constexpr std::wstring_view kKeyOf32Bit = L"SOFTWARE\\WOW6432Node\\WQSpCfgViews";

bool HasTwoViews()
{
    BOOL is32On64 = FALSE;
    return sizeof(void*) == 8 || (IsWow64Process(GetCurrentProcess(), &is32On64) != 0 && is32On64 != FALSE);
}

// As another program of the given view leaves it.
void PutRaw(REGSAM view, std::wstring_view path, const wchar_t* name, DWORD value)
{
    HKEY key = nullptr;
    ASSERT_EQ(RegCreateKeyExW(HKEY_LOCAL_MACHINE, std::wstring(path).c_str(), 0, nullptr, 0, KEY_ALL_ACCESS | view,
                              nullptr, &key, nullptr),
              ERROR_SUCCESS);
    EXPECT_EQ(RegSetValueExW(key, name, 0, REG_DWORD, reinterpret_cast<const BYTE*>(&value), sizeof(value)),
              ERROR_SUCCESS);
    RegCloseKey(key);
}

class WindowsViewsTest : public testing::Test
{
  protected:
    void SetUp() override
    {
        if (!HasTwoViews()) {
            GTEST_SKIP() << "a 32-bit Windows has one view";
        }
        Wipe();
    }
    void TearDown() override { Wipe(); }

    static void Wipe()
    {
        for (const auto* address : {"windows:32", "windows:64"}) {
            const auto store = Open(address);
            const auto transaction = Begin(*store, Access::Write);
            EXPECT_NE(transaction->DeleteKey(Hive::LocalMachine, kKey), Outcome::Failed);
            EXPECT_EQ(transaction->Commit(false), Outcome::Found);
        }
    }

    std::shared_ptr<Store> of32Bit = Open("windows:32");
    std::shared_ptr<Store> of64Bit = Open("windows:64");
};

} // namespace

TEST_F(WindowsViewsTest, EachAddressSeesTheKeysOfItsPrograms)
{
    PutRaw(KEY_WOW64_64KEY, kKeyOf32Bit, L"Port", 32);
    EXPECT_EQ(Get(*of32Bit, kKey, L"Port"), "4:20000000");
    EXPECT_EQ(Get(*of64Bit, kKey, L"Port"), "missing");
    EXPECT_EQ(Get(*of64Bit, kKeyOf32Bit, L"Port"), "4:20000000");

    PutRaw(KEY_WOW64_64KEY, kKey, L"Port", 64);
    EXPECT_EQ(Get(*of32Bit, kKey, L"Port"), "4:20000000");
    EXPECT_EQ(Get(*of64Bit, kKey, L"Port"), "4:40000000");

    // Without a view in the address it is that of this program, unless the caller asks for the other.
    EXPECT_EQ(Get(*Open("windows:"), kKey, L"Port"), sizeof(void*) == 8 ? "4:40000000" : "4:20000000");
    EXPECT_EQ(Get(*Open("windows:", {.view32 = true}), kKey, L"Port"), "4:20000000");
    Error error;
    EXPECT_FALSE(OpenStore("windows:64", {.view32 = true}, error));
    EXPECT_EQ(error.kind, ErrorKind::BadArgument);
}

TEST_F(WindowsViewsTest, WritesAndDeletionsStayInTheirView)
{
    Put(*of32Bit, std::wstring(kKey) + L"\\Comm\\Deep", L"Port", DwordBytes(1));
    Put(*of64Bit, std::wstring(kKey) + L"\\Comm\\Deep", L"Port", DwordBytes(2));
    Put(*of64Bit, std::wstring(kKey) + L"\\Only64", L"", DwordBytes(3));
    EXPECT_EQ(Get(*of64Bit, std::wstring(kKeyOf32Bit) + L"\\Comm\\Deep", L"Port"), "4:01000000");
    EXPECT_EQ(Subkeys(*of32Bit, kKey), std::vector<std::wstring>{L"Comm"});
    EXPECT_EQ(Subkeys(*of64Bit, kKey), (std::vector<std::wstring>{L"Comm", L"Only64"}));
    {
        // A key that was opened to be read is written in its own view, too.
        const auto transaction = Begin(*of32Bit, Access::Write);
        KeyId key = 0;
        ASSERT_EQ(transaction->OpenKey(Hive::LocalMachine, std::wstring(kKey) + L"\\Comm", key), Outcome::Found);
        ASSERT_EQ(transaction->SetValue(key, L"Baud", {ValueType::Dword, DwordBytes(4)}), Outcome::Found);
        ASSERT_EQ(transaction->Commit(true), Outcome::Found);
        EXPECT_EQ(Get(*of64Bit, std::wstring(kKey) + L"\\Comm", L"Baud"), "missing");
        EXPECT_EQ(Get(*of64Bit, std::wstring(kKeyOf32Bit) + L"\\Comm", L"Baud"), "4:04000000");
    }
    {
        const auto transaction = Begin(*of32Bit, Access::Write);
        ASSERT_EQ(transaction->DeleteKey(Hive::LocalMachine, kKey), Outcome::Found);
        ASSERT_EQ(transaction->Commit(false), Outcome::Found);
    }
    EXPECT_EQ(Get(*of64Bit, kKeyOf32Bit, L""), "missing");
    EXPECT_TRUE(Subkeys(*of64Bit, kKeyOf32Bit).empty());
    EXPECT_EQ(Get(*of64Bit, std::wstring(kKey) + L"\\Comm\\Deep", L"Port"), "4:02000000");
}

// The registry operations of a service provider follow the store that its process has chosen.
TEST_F(WindowsViewsTest, RegistryOperationsUseTheViewOfTheCurrentStore)
{
    PutRaw(KEY_WOW64_32KEY, kKey, L"Port", 5);
    DWORD port = 0;
    SetCurrentStore(of64Bit);
    EXPECT_EQ(CRegKeyEx::QueryValue(port, L"Port", L"%s", kKey), 0);
    SetCurrentStore(of32Bit);
    EXPECT_NE(CRegKeyEx::QueryValue(port, L"Port", L"%s", kKey), 0);
    EXPECT_EQ(port, 5U);
    EXPECT_NE(CRegKeyEx::SetValue(6, L"Port", L"%s", kKey), 0);
    SetCurrentStore(nullptr);
    EXPECT_EQ(Get(*of64Bit, kKeyOf32Bit, L"Port"), "4:06000000");
    EXPECT_EQ(Get(*of64Bit, kKey, L"Port"), "missing");
}

} // namespace wqspcfg::test
