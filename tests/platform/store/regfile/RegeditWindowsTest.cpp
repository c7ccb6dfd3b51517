// What regedit exports is read, and what is exported here regedit reads.
#include "support/StoreTesting.h"
#include "wqspcfg/platform/base/WinTypes.h"
#include "wqspcfg/platform/store/regfile/RegFile.h"

#include <fstream>
#include <process.h>

namespace wqspcfg::test {

namespace {

constexpr std::wstring_view kKey = L"Software\\WQSpCfgRegedit";

// Runs regedit to its end. False where there is none.
bool RunRegedit(const wchar_t* option, const std::wstring& file, const wchar_t* key = nullptr)
{
    wchar_t windows[MAX_PATH] = {};
    GetWindowsDirectoryW(windows, MAX_PATH);
    const auto program = std::wstring(windows) + L"\\regedit.exe";
    const auto status = _wspawnl(_P_WAIT, program.c_str(), L"regedit", option, file.c_str(), key, nullptr);
    EXPECT_TRUE(status == 0 || status == -1) << "regedit ended with " << status;
    return status == 0;
}

// Types that regedit takes for texts. That of Wine completes those without a terminator when it reads them, and fails
// on those that are shorter than one; what it writes of a REG_SZ or REG_DWORD depends on its form.
bool IsText(std::uint32_t type)
{
    return type == 1 || type == 2 || type == 7;
}

class RegeditTest : public testing::Test
{
  protected:
    RegeditTest() { Wipe(); }
    ~RegeditTest() override { Wipe(); }

    void Wipe()
    {
        const auto transaction = Begin(*store, Access::Write);
        EXPECT_NE(transaction->DeleteKey(Hive::CurrentUser, kKey), Outcome::Failed);
        EXPECT_EQ(transaction->Commit(true), Outcome::Found);
    }

    void Put(const std::wstring& path, std::wstring_view name, const Bytes& data, std::uint32_t type)
    {
        test::Put(*store, std::wstring(kKey) + L'\\' + path, name, data, static_cast<ValueType>(type),
                  Hive::CurrentUser);
    }

    // The same bytes with every type, those that are known to nobody included.
    void PutAsEveryType(const std::wstring& path, const Bytes& data, bool (*isKept)(std::uint32_t type))
    {
        for (const auto type : {0U, 1U, 2U, 3U, 4U, 5U, 6U, 7U, 8U, 9U, 10U, 11U, 12U, 0x1234U, 0xFFFF0001U}) {
            if (isKept(type)) {
                Put(path, std::to_wstring(type), data, type);
            }
        }
    }

    // What both regedits carry unchanged in both directions.
    void PutUsualValues()
    {
        Put(L"", L"", SzBytes(L"the default"), 1);
        Put(L"", L"dword", DwordBytes(0xFEDCBA98), 4);
        for (const auto* text : {L"", L" ", L"\u4e2d\u6587 \U0001F4B6 \"C:\\Temp\\x\"", L"\\", L"\"", L"\\\"",
                                 L"\\n\\r", L"\t\x01\x7f", L"one\r\ntwo\nthree\rfour", L"; [x] @=-", L"hex:01"}) {
            Put(L"texts", std::to_wstring(std::wstring_view(text).size()) + L' ' + std::wstring(text, 0, 1),
                SzBytes(text), 1);
        }
        for (const auto* name :
             {L"\u65e0\u4eba\u503c\u5b88", L"name \"quoted\" \\ back", L"[bracket]", L"]", L"@", L"a=b", L";c", L"=",
              L" before", L"behind ", L"-", L"hex:01", L"{GUID}", L"%d%s", L"\U0001F4B6"}) {
            Put(L"names", name, DwordBytes(1), 4);
            Put(L"keys\\" + std::wstring(name), L"", DwordBytes(1), 4);
        }
        Put(L"names", std::wstring(2000, L'n'), DwordBytes(1), 4);
        Put(L"names", L"lone \xD83D", DwordBytes(1), 4);
        Put(L"sub", L"", DwordBytes(3), 4);
        PutAsEveryType(L"as text", SzBytes(L"%SystemRoot%\\\u6df1"), [](auto type) { return type != 4; });
        PutAsEveryType(L"as list", ToBytes(std::string_view("a\0\0\0b\0c\0\0\0\0\0", 12)),
                       [](auto type) { return type != 1 && type != 4; });
    }

    std::string Contents() { return Dump(*store, kKey, Hive::CurrentUser); }

    TemporaryDirectory directory;
    std::wstring file = (directory.Path() / "export.reg").wstring();
    std::shared_ptr<Store> store = Open("windows:");
};

} // namespace

TEST_F(RegeditTest, ReadsWhatWeExport)
{
    PutUsualValues();
    const auto isNoText = [](std::uint32_t type) { return !IsText(type); };
    PutAsEveryType(L"empty", {}, isNoText);
    PutAsEveryType(L"short", ToBytes("x"), isNoText);
    PutAsEveryType(L"odd", ToBytes(std::string_view("a\0b\0c", 5)), isNoText);
    PutAsEveryType(L"number", ToBytes("12345678"), isNoText);
    PutAsEveryType(L"long", Bytes(3001, std::byte{0x5A}), isNoText);
    PutAsEveryType(L"ill-formed", ToBytes(std::string_view("\x00\xd8\x41\x00\x00\x00", 6)), [](auto) { return true; });
    const auto before = Contents();

    Error error;
    std::ofstream out(directory.Path() / "export.reg", std::ios::binary);
    ASSERT_TRUE(ExportRegFile(*store, Hive::CurrentUser, kKey, out, error)) << error.message;
    out.close();
    Wipe();
    if (!RunRegedit(L"/S", file)) {
        GTEST_SKIP() << "there is no regedit";
    }
    EXPECT_EQ(Contents(), before);
}

TEST_F(RegeditTest, ItsExportIsRead)
{
    PutUsualValues();
    const auto isAsItStands = [](std::uint32_t type) { return type != 1 && type != 4; };
    PutAsEveryType(L"empty", {}, isAsItStands);
    PutAsEveryType(L"short", ToBytes("x"), isAsItStands);
    PutAsEveryType(L"odd", ToBytes(std::string_view("a\0b\0c", 5)), isAsItStands);
    PutAsEveryType(L"number", ToBytes("12345678"), isAsItStands);
    PutAsEveryType(L"long", Bytes(3001, std::byte{0x5A}), isAsItStands);
    PutAsEveryType(L"ill-formed", ToBytes(std::string_view("\x00\xd8\x41\x00\x00\x00", 6)), isAsItStands);
    Put(L"names", L"line\r\nbreak", DwordBytes(1), 4);
    const auto before = Contents();

    const auto key = L"HKEY_CURRENT_USER\\" + std::wstring(kKey);
    if (!RunRegedit(L"/E", file, key.c_str())) {
        GTEST_SKIP() << "there is no regedit";
    }
    Wipe();
    Error error;
    ImportCounts counts;
    ASSERT_TRUE(ImportRegFile(*store, directory.File("export.reg"), counts, error)) << error.message;
    EXPECT_EQ(Contents(), before);
}

// A key that two programs write: what the one exports and the other imports comes back through both.
TEST_F(RegeditTest, BothWaysInTurnChangeNothing)
{
    PutUsualValues();
    const auto before = Contents();
    const auto key = L"HKEY_CURRENT_USER\\" + std::wstring(kKey);
    if (!RunRegedit(L"/E", file, key.c_str())) {
        GTEST_SKIP() << "there is no regedit";
    }
    const auto theirs = Open("reg:" + directory.File("export.reg"));
    ASSERT_TRUE(theirs);
    const auto ours = directory.Path() / "ours.reg";
    Error error;
    std::ofstream out(ours, std::ios::binary);
    ASSERT_TRUE(ExportRegFile(*theirs, Hive::CurrentUser, kKey, out, error)) << error.message;
    out.close();
    Wipe();
    ASSERT_TRUE(RunRegedit(L"/S", ours.wstring()));
    EXPECT_EQ(Contents(), before);
}

} // namespace wqspcfg::test
