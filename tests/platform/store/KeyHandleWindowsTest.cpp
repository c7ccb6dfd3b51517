#include "wqspcfg/parts/serial/BillFSNRegInfo.h"
#include "wqspcfg/platform/store/KeyHandle.h"

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

} // namespace
