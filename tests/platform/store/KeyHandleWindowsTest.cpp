#include "wqspcfg/parts/serial/BillFSNRegInfo.h"
#include "wqspcfg/platform/store/KeyHandle.h"
#include "wqspcfg/platform/store/RegistryValue.h"
#include "wqspcfg/platform/store/Session.h"

#include <gtest/gtest.h>

namespace {

// A service provider may hand the records a key of the Windows registry.
TEST(KeyHandleWindowsTest, RecordsTakeAKeyOfTheWindowsRegistry)
{
    constexpr wchar_t kPath[] = L"SOFTWARE\\WQSpCfgTest\\SNRData";
    HKEY hKey = nullptr;
    ASSERT_EQ(RegCreateKeyExW(HKEY_CURRENT_USER, kPath, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &hKey, nullptr),
              ERROR_SUCCESS);
    tagBillFSNRegInfo written;
    written.DevNO = L"0815";
    written.BankCodeMaxLen = 5;
    written.IsUseTermType = false;
    written.FileNameParts.Add({9, L"remark", L"_"});
    EXPECT_TRUE(written.Save(hKey));
    tagBillFSNRegInfo read;
    EXPECT_TRUE(read.Load(hKey));
    EXPECT_EQ(read.DevNO, written.DevNO);
    EXPECT_EQ(read.BankCodeMaxLen, 5U);
    EXPECT_FALSE(read.IsUseTermType);
    ASSERT_EQ(read.FileNameParts.GetSize(), 1);
    EXPECT_EQ(read.FileNameParts[0].Value, CString(L"remark"));

    RegSetValueExW(hKey, L"DevNO", 0, REG_BINARY, nullptr, 0); // another type counts as missing
    EXPECT_TRUE(read.Load(hKey));
    EXPECT_EQ(read.DevNO, CString());
    RegCloseKey(hKey);
    RegDeleteTreeW(HKEY_CURRENT_USER, L"SOFTWARE\\WQSpCfgTest");
}

// What another module reads and writes through the handle is what the library does.
TEST(KeyHandleWindowsTest, TheHandleIsOneOfTheSystem)
{
    using namespace wqspcfg;
    Error error;
    const auto before = CurrentStore(error);
    SetCurrentStore(OpenStore("windows:", {}, error));
    constexpr wchar_t kPath[] = L"SOFTWARE\\WQSpCfgTest\\Handle";
    {
        WriteScope scope;
        const DwordBytes five(5);
        scope->Set(scope->Open(kPath), L"dwAPID", five.View());
    }
    KeyHandle key;
    ASSERT_TRUE(key.Open(kPath));
    DWORD number = 0;
    DWORD size = sizeof number;
    EXPECT_EQ(RegQueryValueExW(key.Get(), L"dwAPID", nullptr, nullptr, reinterpret_cast<BYTE*>(&number), &size),
              ERROR_SUCCESS);
    EXPECT_EQ(number, 5U);
    number = 6;
    EXPECT_EQ(RegSetValueExW(key.Get(), L"dwAPID", 0, REG_DWORD, reinterpret_cast<const BYTE*>(&number), sizeof number),
              ERROR_SUCCESS);
    DWORD read = 0;
    EXPECT_TRUE(KeyReader(key.Get()).Query(L"dwAPID", read));
    EXPECT_EQ(read, 6U);
    key.Close();
    EXPECT_EQ(key.Get(), nullptr);
    EXPECT_FALSE(key.Open(L"SOFTWARE\\WQSpCfgTest\\Missing"));
    RegDeleteTreeW(HKEY_LOCAL_MACHINE, L"SOFTWARE\\WQSpCfgTest");
    SetCurrentStore(before);
}

} // namespace
