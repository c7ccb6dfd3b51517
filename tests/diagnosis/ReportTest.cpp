#include "wqspcfg/diagnosis/Report.h"

#include "support/ConfigTest.h"
#include "wqspcfg/diagnosis/SettingText.h"
#include "wqspcfg/platform/text/Utf.h"

#include <optional>
#include <sstream>

namespace wqspcfg::diagnosis {

namespace {

std::size_t Count(const std::string& text, const std::string& part)
{
    std::size_t count = 0;
    for (auto at = text.find(part); at != std::string::npos; at = text.find(part, at + part.size())) {
        ++count;
    }
    return count;
}

// The service `Svc` is a card dispenser.
class ReportTest : public test::ConfigTest
{
  protected:
    ReportTest()
    {
        Set(kLogical, L"Provider", L"Phys");
        Set(kLogical, L"Class", L"CRD");
        Set(Service(), L"ExeDllMother", L"WQSpCRDWQTYM1200");
        Set(Service(), L"DLLName", L"x.dll");
        Set(kDevice + L"\\Comm", L"BaudRate", 9600U);
    }

    std::string Written(const std::vector<Examination>* other = nullptr, bool showSecrets = false)
    {
        ResetProcess();
        Places places({});
        const auto checkup = Check({.showSecrets = showSecrets}, places);
        std::optional<Comparison> comparison;
        if (other != nullptr) {
            comparison.emplace(Comparison{"reg:<other>.reg", places, Compare(checkup.services, *other, showSecrets)});
        }
        std::ostringstream out;
        WriteReport(checkup, comparison ? &*comparison : nullptr, {"reg:a&b.reg", "today", "this", showSecrets}, places,
                    out);
        return out.str();
    }

    // The row of the setting, from its begin to its end.
    static std::string RowOf(const std::string& page, const std::string& name)
    {
        const auto cell = page.find("<th scope=\"row\">" + name + "<");
        const auto begin = page.rfind("<tr", cell);
        return cell != std::string::npos ? page.substr(begin, page.find("</tr>", begin) - begin) : std::string();
    }

    const std::wstring kLogical = L".DEFAULT\\XFS\\LOGICAL_SERVICES\\Svc";
    const std::wstring kDevice = L"SOFTWARE\\XFS\\PHYSICAL_SERVICES\\WQSpCRDWQTYM1200";
};

TEST_F(ReportTest, ASoundTerminalIsToldToBeSo)
{
    const auto page = Written();
    EXPECT_NE(page.find("Nothing is wrong"), std::string::npos);
    EXPECT_EQ(page.find("table class=\"findings\""), std::string::npos);
    EXPECT_NE(page.find("<title>Terminal report, reg:a&amp;b.reg</title>"), std::string::npos);
    const auto row = RowOf(page, "BaudRate");
    EXPECT_NE(row.find("<code>9600</code>"), std::string::npos) << row;
    EXPECT_EQ(row.find("changed"), std::string::npos) << row;
    EXPECT_NE(row.find("device key"), std::string::npos) << row;
    EXPECT_NE(row.find("REG_DWORD 9600, in effect"), std::string::npos) << row;
}

TEST_F(ReportTest, AFindingLeadsToItsSetting)
{
    Set(kDevice + L"\\Control", L"CloseOption", 77U);
    Set(kDevice + L"\\Comm", L"BuadRate", 1U);
    Set(L"SOFTWARE\\XFS\\PHYSICAL_SERVICES\\WQSpOLD", L"x", 1U);
    const auto page = Written();
    const auto row = RowOf(page, "CloseOption");
    EXPECT_NE(row.find("class=\"changed finding \""), std::string::npos) << row;
    EXPECT_NE(row.find("allowed: 0 eject, 1 retain, 2 leave"), std::string::npos) << row;
    const auto id = row.substr(row.find("id=\"") + 4, row.find('"', row.find("id=\"") + 4) - row.find("id=\"") - 4);
    EXPECT_EQ(Count(page, "href=\"#" + id + "\""), 1U);
    // A value that nothing reads leads to its key, and what belongs to no service leads nowhere.
    const auto misspelt = page.find(">BuadRate</a>");
    ASSERT_NE(misspelt, std::string::npos);
    const auto link = page.rfind("href=\"#", misspelt) + 7;
    const auto key = page.substr(link, page.find('"', link) - link);
    const auto heading = page.find("<tr id=\"" + key + "\" class=\"key\">");
    ASSERT_NE(heading, std::string::npos) << key;
    EXPECT_NE(page.substr(heading, 100).find(">Comm <"), std::string::npos) << page.substr(heading, 100);
    EXPECT_NE(page.find(">WQSpOLD</span>"), std::string::npos);
}

TEST_F(ReportTest, StoredTextIsNoMarkupWhereverItStands)
{
    const std::wstring evilName = L"</script><script>alert('\"')</script>\u202E"; // no key has a control character
    const std::wstring evil = evilName + L'\x1B';
    const std::wstring lone{static_cast<wchar_t>(0xD800), L'\n'};
    Set(kDevice, L"CapVendorDescKeyValue", L"<b>");
    Set(kDevice + L"\\Comm", L"Port", evil.c_str());
    Set(kDevice + L"\\Comm", evil, L"a name");
    Set(kDevice + L"\\CheckErrorHandler", evil, evil.c_str());
    Set(L".DEFAULT\\XFS\\LOGICAL_SERVICES\\" + evilName, L"Class", evil.c_str());
    Set(L"SOFTWARE\\XFS\\PHYSICAL_SERVICES\\<img src=x>", L"x", 1U);
    ResetProcess();
    auto other = ExamineTerminal({});
    Set(kDevice, L"CapVendorDescKeyValue", (evil + lone).c_str());
    const auto page = Written(&other.services);
    EXPECT_EQ(Count(page, "<script"), 1U);
    EXPECT_EQ(Count(page, "</script"), 1U);
    EXPECT_EQ(page.find("<img"), std::string::npos);
    EXPECT_EQ(page.find("alert('"), std::string::npos);
    EXPECT_EQ(page.find('\x1B'), std::string::npos);
    EXPECT_EQ(page.find("\u202E"), std::string::npos);
    EXPECT_GT(Count(page, "&lt;script&gt;"), 5U);
    EXPECT_NE(page.find(">U+001B<"), std::string::npos);
    EXPECT_NE(page.find(">U+202E<"), std::string::npos);
    EXPECT_NE(page.find(">U+D800<"), std::string::npos);
    std::wstring wide;
    EXPECT_TRUE(AppendWideFromUtf8(page, wide));
}

TEST_F(ReportTest, SecretsAreMaskedOnEveryWayOnThePage)
{
    Set(kDevice + L"\\Comm", L"BluetoothPassWord", L"hunter2");
    ResetProcess();
    auto other = ExamineTerminal({});
    Set(kDevice + L"\\Comm", L"BluetoothPassWord", L"swordfish");
    const auto page = Written(&other.services);
    EXPECT_EQ(page.find("hunter2"), std::string::npos);
    EXPECT_EQ(page.find("swordfish"), std::string::npos);
    EXPECT_NE(RowOf(page, "BluetoothPassWord").find(kMasked), std::string::npos);
    EXPECT_NE(Written(&other.services, true).find("swordfish"), std::string::npos);
    Set(kDevice + L"\\Comm", L"BluetoothPassWord", 4711U);
    EXPECT_EQ(Written().find("4711"), std::string::npos) << "of another type";
}

TEST_F(ReportTest, ALongTextIsCutAndStandsWholeOnce)
{
    const std::wstring large(1 << 20, L'm');
    // It is part of the path of each key.
    Set(Service(), L"ExeDllMother", (L"WQSpCRDWQTYM1200" + large.substr(0, 1 << 16)).c_str());
    Set(kLogical, L"Class", large.c_str());
    EXPECT_LT(Written().size(), 4U << 20);
    Set(Service(), L"ExeDllMother", L"WQSpCRDWQTYM1200");
    Set(kLogical, L"Class", L"CRD");
    Set(kDevice, L"CapVendorDescKeyValue", large.c_str());
    const auto row = RowOf(Written(), "CapVendorDescKeyValue");
    EXPECT_EQ(Count(row, "<pre"), 1U);
    EXPECT_NE(row.find("1,048,576 characters"), std::string::npos);
    EXPECT_LT(row.size(), large.size() + 2000);
}

TEST_F(ReportTest, DifferencesStandBesideTheSettings)
{
    ResetProcess();
    auto other = ExamineTerminal({});
    EXPECT_NE(Written(&other.services).find("run with the same values"), std::string::npos);
    Set(kDevice + L"\\Control", L"CloseOption", 1U);
    Set(L".DEFAULT\\XFS\\LOGICAL_SERVICES\\Svc2", L"Provider", L"Phys");
    const auto page = Written(&other.services);
    EXPECT_NE(page.find("reg:&lt;other&gt;.reg"), std::string::npos);
    const auto row = RowOf(page, "CloseOption");
    EXPECT_NE(row.find("differs\""), std::string::npos) << row;
    EXPECT_NE(row.find("There: <code>2 leave</code>"), std::string::npos) << row;
    const auto begin = page.find("<table class=\"differences\">");
    const auto table = page.substr(begin, page.find("</table>", begin) - begin);
    EXPECT_NE(table.find("Control\\CloseOption"), std::string::npos) << table;
    EXPECT_NE(table.find("<code>1 retain</code>"), std::string::npos) << table;
    EXPECT_NE(table.find("not there"), std::string::npos) << table;
}

} // namespace

// A class value is whatever somebody stored: in the contents it stays beside its name.
TEST_F(ReportTest, ALongClassValueIsCutInTheContents)
{
    Set(kLogical, L"Class", std::wstring(300, L'W').c_str());
    const auto page = Written();
    const auto begin = page.find("<nav");
    const auto contents = page.substr(begin, page.find("</nav>", begin) - begin);
    EXPECT_EQ(Count(contents, "<small>" + std::string(16, 'W') + "…</small>"), 1U) << contents;
}

} // namespace wqspcfg::diagnosis
