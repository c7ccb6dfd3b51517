#include "wqspcfg/diagnosis/Places.h"

#include "support/StoreTesting.h"

namespace wqspcfg::diagnosis {

namespace {

using namespace wqspcfg::test;

TEST(PlacesTest, NamesTheLineOfAKeyOrOfWhatStandsBelowIt)
{
    const TemporaryDirectory directory;
    const auto file = directory.File("a.reg");
    WriteFile(file, "REGEDIT4\r\n\r\n"
                    "[HKEY_LOCAL_MACHINE\\SOFTWARE\\XFS\\PHYSICAL_SERVICES\\A\\Comm]\r\n"
                    "\"Port\"=dword:00000001\r\n"
                    "[HKEY_LOCAL_MACHINE\\SOFTWARE\\XFS\\PHYSICAL_SERVICES\\B\\Comm]\r\n"
                    "[HKEY_LOCAL_MACHINE\\SOFTWARE\\XFS\\PHYSICAL_SERVICES\\B]\r\n");
    Places places({file, 0, false});
    const auto lineOf = [&](const std::wstring& key, const wchar_t* name = nullptr) {
        const std::wstring value = name != nullptr ? name : L"";
        const auto place = places.Of(L"SOFTWARE\\XFS\\PHYSICAL_SERVICES\\" + key, name != nullptr ? &value : nullptr);
        return place.empty() ? place : place.substr(file.size());
    };
    EXPECT_EQ(lineOf(L"a\\comm"), ":3");
    EXPECT_EQ(lineOf(L"A"), ":3") << "no line names it: the first key below it";
    EXPECT_EQ(lineOf(L"B"), ":6") << "its own line, though one below it comes first";
    EXPECT_EQ(lineOf(L"A\\Comm", L"PORT"), ":4");
    EXPECT_EQ(lineOf(L"A", L"Port"), "");
    EXPECT_EQ(lineOf(L"C"), "");
}

} // namespace

} // namespace wqspcfg::diagnosis
