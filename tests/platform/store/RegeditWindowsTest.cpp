// What regedit exports is read, and what is exported here regedit reads.
#include "platform/base/WinTypes.h"
#include "platform/store/RegFile.h"
#include "support/StoreTesting.h"

#include <fstream>
#include <process.h>

namespace wqspcfg::test {

namespace {

constexpr std::wstring_view kKey = L"Software\\WQSpCfgRegedit";

// Whether regedit ran and succeeded.
bool RunRegedit(const wchar_t* option, const std::wstring& file, const std::wstring& key = {})
{
    wchar_t windows[MAX_PATH] = {};
    GetWindowsDirectoryW(windows, MAX_PATH);
    const auto program = std::wstring(windows) + L"\\regedit.exe";
    return _wspawnl(_P_WAIT, program.c_str(), L"regedit", option, file.c_str(), key.empty() ? nullptr : key.c_str(),
                    nullptr) == 0;
}

class RegeditTest : public testing::Test
{
  protected:
    // Values that regedit itself carries unchanged: that of Wine completes texts and dwords of a wrong length.
    void SetUp() override
    {
        TearDown();
        const auto put = [this](std::wstring_view path, std::wstring_view name, const Bytes& data, ValueType type) {
            Put(*store, std::wstring(kKey) + std::wstring(path), name, data, type, Hive::CurrentUser);
        };
        put(L"", L"", SzBytes(L"the default"), ValueType::Sz);
        put(L"", L"none", ToBytes("abc"), ValueType::None);
        put(L"", L"empty text", SzBytes(L""), ValueType::Sz);
        put(L"", L"\u65e0\u4eba\u503c\u5b88", SzBytes(L"\u4e2d\u6587 \U0001F4B6 \"C:\\Temp\\x\""), ValueType::Sz);
        put(L"", L"lines", SzBytes(L"one\r\ntwo\nthree"), ValueType::Sz);
        put(L"", L"name \"quoted\" \\ back", DwordBytes(1), ValueType::Dword);
        put(L"", L"expand", SzBytes(L"%SystemRoot%\\system32"), ValueType::ExpandSz);
        put(L"", L"binary", Bytes(300, std::byte{0x5A}), ValueType::Binary);
        put(L"", L"no binary", {}, ValueType::Binary);
        put(L"", L"dword", DwordBytes(0xFEDCBA98), ValueType::Dword);
        put(L"", L"big", ToBytes("\x01\x02\x03\x04"), ValueType::DwordBigEndian);
        put(L"", L"multi", ToBytes(std::string_view("a\0\0\0b\0c\0\0\0\0\0", 12)), ValueType::MultiSz);
        put(L"", L"qword", ToBytes("12345678"), ValueType::Qword);
        put(L"", L"unknown", ToBytes("u"), static_cast<ValueType>(0x1234));
        put(L"\\Sub [1]\\\u6df1", L"x", DwordBytes(2), ValueType::Dword);
        put(L"\\sub", L"", DwordBytes(3), ValueType::Dword);
        before = Contents();
    }

    void TearDown() override
    {
        const auto transaction = Begin(*store, Access::Write);
        ASSERT_NE(transaction->DeleteKey(Hive::CurrentUser, kKey), Outcome::Failed);
        ASSERT_EQ(transaction->Commit(true), Outcome::Found);
    }

    std::string Contents() { return Dump(*store, kKey, Hive::CurrentUser); }

    TemporaryDirectory directory;
    std::wstring file = (directory.Path() / "export.reg").wstring();
    std::shared_ptr<Store> store = Open("windows:");
    std::string before;
};

} // namespace

TEST_F(RegeditTest, ReadsWhatWeExport)
{
    Error error;
    std::ofstream out(directory.Path() / "export.reg", std::ios::binary);
    ASSERT_TRUE(ExportRegFile(*store, Hive::CurrentUser, kKey, out, error)) << error.message;
    out.close();
    TearDown();
    if (!RunRegedit(L"/S", file)) {
        GTEST_SKIP() << "regedit cannot be run";
    }
    EXPECT_EQ(Contents(), before);
}

TEST_F(RegeditTest, ItsExportIsRead)
{
    const auto key = L"HKEY_CURRENT_USER\\" + std::wstring(kKey);
    if (!RunRegedit(L"/E", file, key)) {
        GTEST_SKIP() << "regedit cannot be run";
    }
    TearDown();
    Error error;
    ImportCounts counts;
    ASSERT_TRUE(ImportRegFile(*store, directory.File("export.reg"), counts, error)) << error.message;
    EXPECT_EQ(Contents(), before);
}

} // namespace wqspcfg::test
