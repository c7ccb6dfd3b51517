#include "CommandLineTesting.h"
#include "support/StoreTesting.h"

#include <nlohmann/json.hpp>

#include <algorithm>

namespace wqspcfg::tools {

namespace {

using nlohmann::json;

constexpr char kDevice[] = "HKLM\\SOFTWARE\\XFS\\PHYSICAL_SERVICES\\WQSpCRDWQTYM1200";

class DiffAndChangeTest : public CommandLineTest
{
  protected:
    int Diff(const std::string& left, const std::string& right, std::vector<std::string> options = {})
    {
        options.insert(options.begin(), {"diff", left, right});
        return RunAlone(options);
    }

    // An embedded store with the card dispenser.
    void Import(const std::string& comm)
    {
        Export("import.reg", comm);
        ASSERT_EQ(Run({"import", File("import.reg")}), 0) << m_err;
    }
    int Change(std::vector<std::string> arguments)
    {
        arguments.insert(arguments.begin(), {"change", "CardDispenser"});
        return Run(std::move(arguments));
    }
    std::string Stored(const std::string& subkey, const std::string& name)
    {
        return Run({"get", kDevice + ('\\' + subkey), name}) == 0 ? m_out.substr(0, m_out.size() - 1) : "missing";
    }
    bool HasIn(const std::string& text, const std::string& part) const { return text.find(part) != std::string::npos; }
    void ExpectNoControls() const
    {
        for (const auto& text : {m_out, m_err}) {
            EXPECT_TRUE(std::none_of(text.begin(), text.end(), [](char ch) {
                return static_cast<unsigned char>(ch) < 0x20 && ch != '\n';
            })) << text;
        }
    }
};

} // namespace

TEST_F(DiffAndChangeTest, DiffTellsWhatDiffersInTheValuesInEffect)
{
    const auto left = Export("a.reg", "\"Port\"=dword:4\n\"BaudRate\"=dword:2580\n");
    const auto right = Export("b.reg", "\"Port\"=\"4\"\n\n"
                                       "[HKEY_USERS\\.DEFAULT\\XFS\\LOGICAL_SERVICES\\Ghost]\n\"Provider\"=\"None\"\n");
    EXPECT_EQ(Diff(left, right), 1);
    EXPECT_EQ(m_out, "CardDispenser  Comm\\Port  4 -> 1   (REG_DWORD 4 -> REG_SZ \"4\": the default is in effect)   " +
                         Place("a.reg", 11) + ", " + Place("b.reg", 11) + "\nGhost  only in " + right + "   " +
                         Place("b.reg", 13) + '\n')
        << "a stored default and a missing value are the same";
    EXPECT_EQ(m_err, "wqspcfg: 2 differences\n");
    EXPECT_EQ(Diff(left, right, {"carddispenser"}), 1);
    EXPECT_FALSE(HasIn(m_out, "Ghost"));
    EXPECT_EQ(Diff(left, left, {"--raw"}), 0);
    EXPECT_EQ(m_out + m_err, "");

    EXPECT_EQ(Diff(left, right, {"--raw", "CardDispenser"}), 1);
    EXPECT_EQ(m_out, kDevice + ("\\Comm\\BaudRate  REG_DWORD 9600 -> missing   " + Place("a.reg", 12)) + '\n' +
                         kDevice + "\\Comm\\Port  REG_DWORD 4 -> REG_SZ \"4\"   " + Place("a.reg", 11) + ", " +
                         Place("b.reg", 11) + '\n');
    EXPECT_EQ(Diff(left, right, {"--json"}), 1);
    const auto out = json::parse(m_out)["differences"];
    ASSERT_EQ(out.size(), 2U);
    EXPECT_EQ(out[0]["name"], "Port");
    EXPECT_EQ(out[0]["left"]["value"], 4);
    EXPECT_EQ(out[0]["right"]["stored"]["data"], "4");
    EXPECT_EQ(out[0]["right"]["source"], "wrongType");
    EXPECT_EQ(out[1]["kind"], "service");
    EXPECT_EQ(out[1]["left"], nullptr);
    EXPECT_EQ(Diff(left, right, {"--json", "--raw"}), 1);
    EXPECT_EQ(json::parse(m_out)["differences"][0]["right"]["values"], 1) << "the key of the ghost";
}

TEST_F(DiffAndChangeTest, DiffRefusesWhatCannotBeCompared)
{
    const auto left = Export("a.reg", "\"Port\"=dword:4\n");
    EXPECT_EQ(Diff(left, left, {"Nobody"}), 1);
    EXPECT_TRUE(HasIn(m_err, "there is no service \"Nobody\" in either store"));
    EXPECT_EQ(Diff(left, "reg:" + File("none.reg")), 3);
    EXPECT_EQ(Diff("", left), 2);
    EXPECT_EQ(RunOn(left, {"diff", left, left}), 2);
    EXPECT_EQ(RunOn(left, {"diff", left}), 2);
    EXPECT_EQ(Diff("memory:", "memory:", {"--view32"}), 2);

    // The options count for the store that they can apply to.
    auto text = test::ReadFile(File("a.reg"));
    for (std::size_t at = 0; (at = text.find("SOFTWARE\\XFS", at)) != std::string::npos; at += 20) {
        text.replace(at, 12, "SOFTWARE\\WOW6432Node\\XFS");
    }
    test::WriteFile(File("wow.reg"), text);
    EXPECT_EQ(Diff("reg:" + File("wow.reg"), left), 3);
    EXPECT_TRUE(HasIn(m_err, "--view32")) << m_err;
    EXPECT_EQ(Diff("reg:" + File("wow.reg"), left, {"--view32"}), 0) << m_out << m_err;
    EXPECT_EQ(Diff("reg:" + File("wow.reg"), "memory:", {"--view32", "--codepage", "936"}), 1);
    EXPECT_EQ(m_out, "CardDispenser  only in reg:" + File("wow.reg") + "   " + Place("wow.reg", 3) + '\n');
}

#if !defined(_WIN32) // needs the embedded store

TEST_F(DiffAndChangeTest, ChangeSetsByNameInOneTransaction)
{
    ASSERT_NO_FATAL_FAILURE(Import("\"Port\"=\"4\"\n\n"
                                   "[HKEY_LOCAL_MACHINE\\SOFTWARE\\XFS\\SERVICE_PROVIDERS\\WQCmnCfg\\Policy]\n"
                                   "\"DevError\"=dword:7\n"));
    const std::string control = kDevice + std::string("\\Control\\CloseOption");
    EXPECT_EQ(Change({"CloseOption=eject", "comm\\port=0x4", "--dry-run"}), 0) << m_err;
    const auto lines = "Control\\CloseOption  missing (default 2 leave) -> 0 eject   " + control +
                       "\nComm\\Port  REG_SZ \"4\" -> 4   " + kDevice + "\\Comm\\Port\n";
    EXPECT_EQ(m_out, lines);
    EXPECT_TRUE(HasIn(m_err, "nothing is changed: --dry-run"));
    EXPECT_EQ(Stored("Comm", "Port") + Stored("Control", "CloseOption"), "4missing");

    // A refusal anywhere leaves all as it was.
    EXPECT_EQ(Change({"CloseOption=eject", "Port=9", "CancelOnClose=maybe"}), 2);
    EXPECT_EQ(m_out, "");
    EXPECT_TRUE(HasIn(m_err, "cannot be \"maybe\"")) << m_err;
    EXPECT_EQ(Change({"CloseOption=eject", "Prot=9"}), 1);
    EXPECT_TRUE(HasIn(m_err, "did you mean \"Port\"?")) << m_err;
    EXPECT_EQ(Change({"--unset", "BaudRate", "CloseOption=eject"}), 1);
    EXPECT_TRUE(HasIn(m_err, "BaudRate is not stored")) << m_err;
    EXPECT_EQ(Stored("Comm", "Port") + Stored("Control", "CloseOption"), "4missing");

    EXPECT_EQ(Change({"CloseOption=eject", "comm\\port=0x4"}), 0) << m_err;
    EXPECT_EQ(m_out, lines);
    EXPECT_EQ(Run({"explain", "CardDispenser", "--changed"}), 0);
    EXPECT_TRUE(HasIn(m_out, "CloseOption   0 eject")) << m_out;
    EXPECT_EQ(Change({"CloseOption=0"}), 0);
    EXPECT_TRUE(HasIn(m_out, "(unchanged)"));

    EXPECT_EQ(Change({"DevError=0x102", "FirstErrorIntervalTime=71582789", "--unset", "Port", "--json"}), 0) << m_err;
    const auto changes = json::parse(m_out)["changes"];
    ASSERT_EQ(changes.size(), 3U);
    EXPECT_EQ(changes[0]["before"], nullptr);
    EXPECT_EQ(changes[0]["after"]["data"], "258");
    EXPECT_EQ(changes[0]["notes"][0], "the value of WQCmnCfg\\Policy was in effect until now; it stays there");
    EXPECT_EQ(changes[1]["notes"][1], "CSpCRDWQTYM1200RegInfo takes 0 instead") << "in seconds it is too much";
    EXPECT_EQ(changes[2]["after"], nullptr);
    EXPECT_EQ(Change({"FirstErrorIntervalTime=7"}), 0) << m_err;
    EXPECT_FALSE(HasIn(m_out, "instead")) << m_out;
    EXPECT_EQ(Stored("Comm", "Port"), "missing");
}

TEST_F(DiffAndChangeTest, ChangeRefusesWrongUsageAndStoresThatAreReadOnly)
{
    ASSERT_NO_FATAL_FAILURE(Import("\"Port\"=dword:4\n"));
    for (const std::vector<std::string>& arguments :
         {std::vector<std::string>{}, {"Port"}, {"=4"}, {"--unset", ""}, {"Port=1", "Port=2"}, {"Port=\xff"}}) {
        EXPECT_EQ(Change(arguments), 2) << (arguments.empty() ? "" : arguments.front());
        EXPECT_EQ(m_out, "");
    }
    EXPECT_EQ(Run({"change", "Nobody", "Port=1"}), 1);
    EXPECT_EQ(Run({"change", "Nobody", "Port=1", "--model", "CSpCRDWQTYM1200RegInfo"}), 1) << "it has no keys";
    EXPECT_EQ(RunOn("memory:", {"change", "CardDispenser", "Port=1"}), 1);
    EXPECT_EQ(RunOn("lmdb:" + File("none"), {"change", "CardDispenser", "Port=1"}), 3);
    const auto address = Export("a.reg", "\"Port\"=dword:4\n");
    EXPECT_EQ(RunOn(address, {"change", "CardDispenser", "Port=1"}), 3);
    EXPECT_TRUE(HasIn(m_err, "read-only")) << m_err;
    EXPECT_EQ(RunOn(address, {"change", "CardDispenser", "Port=1", "--dry-run"}), 0);
    EXPECT_EQ(m_out, "Comm\\Port  4 -> 1   " + std::string(kDevice) + "\\Comm\\Port, " + Place("a.reg", 11) + '\n');
    EXPECT_EQ(Run({"change", "WQSpCRDWQTYM1200", "Port=5", "--physical"}), 0) << m_err;
    EXPECT_EQ(Stored("Comm", "Port"), "5");
}

// Escape sequences, line ends, lone surrogates and a megabyte, in what is stored and in what is given.
TEST_F(DiffAndChangeTest, HostileTextReachesNoTerminal)
{
    const std::string hostile = "\x1b[31m\r\nCardDispenser  forged\t\xe2\x80\xae";
    const std::string megabyte(1U << 20, 'x');
    ASSERT_NO_FATAL_FAILURE(Import("\"Port\"=hex(1):1b,00,5b,00,0a,00,00,d8,41,00,00,00\n"
                                   "\"BluetoothName\"=hex(1):1b,00,5b,00,0a,00,00,d8,41,00,00,00\n"
                                   "\"BluetoothPassWord\"=\"hunter2\"\n"));
    EXPECT_EQ(Change({"Port=4", "BluetoothName=" + hostile, "BluetoothPassWord=hunter3"}), 0) << m_err;
    ExpectNoControls();
    EXPECT_EQ(std::count(m_out.begin(), m_out.end(), '\n'), 3) << m_out;
    EXPECT_TRUE(HasIn(m_out, "REG_SZ \"<U+001B>[<U+000A>")) << m_out;
    EXPECT_FALSE(HasIn(m_out, "hunter")) << m_out;
    EXPECT_EQ(Stored("Comm", "BluetoothName"), hostile);
    EXPECT_EQ(Change({"BluetoothPassWord=x", "--secrets", "--dry-run"}), 0);
    EXPECT_TRUE(HasIn(m_out, "hunter3"));
    EXPECT_EQ(Change({"a" + hostile + "=1"}), 1);
    ExpectNoControls();

    const auto left = Export("a.reg", "\"BluetoothName\"=hex(1):1b,00,5b,00,0a,00,00,d8,41,00,00,00\n"
                                      "\"BluetoothPassWord\"=\"hunter2\"\n");
    for (const bool isRaw : {false, true}) {
        EXPECT_EQ(Diff(left, StoreAddress(), isRaw ? std::vector<std::string>{"--raw"} : std::vector<std::string>{}),
                  1);
        ExpectNoControls();
        EXPECT_TRUE(HasIn(m_out, "<U+001B>[31m<U+000D><U+000A>CardDispenser  forged")) << m_out;
        EXPECT_FALSE(HasIn(m_out, "hunter")) << m_out;
    }
    const auto other = Export("b.reg", "\"BluetoothName\"=hex(1):1b,00,5b,00,0a,00,01,d8,41,00,00,00\n"
                                       "\"BluetoothPassWord\"=\"hunter2\"\n");
    EXPECT_EQ(Diff(left, other), 1);
    EXPECT_TRUE(HasIn(m_out, "they differ in characters that cannot be shown")) << m_out;
    EXPECT_EQ(Diff(left, other, {"--raw"}), 1);
    EXPECT_TRUE(HasIn(m_out, "(they differ in what is not shown: 12 bytes -> 12 bytes)")) << m_out;
    EXPECT_EQ(Diff(left, StoreAddress(), {"--json"}), 1);
    const auto differences = json::parse(m_out)["differences"];
    EXPECT_TRUE(std::any_of(differences.begin(), differences.end(),
                            [&](const json& each) { return each["right"]["value"] == hostile; }));

    EXPECT_EQ(Change({"BluetoothName=" + megabyte}), 0) << m_err.substr(0, 300);
    EXPECT_LT(m_out.size(), 1000U);
    EXPECT_EQ(Stored("Comm", "BluetoothName"), megabyte);
    EXPECT_EQ(Change({"BluetoothName=" + megabyte + 'y', "--json"}), 0);
    EXPECT_EQ(json::parse(m_out)["changes"][0]["before"]["data"], megabyte);
    EXPECT_EQ(Run({"export", "-o", File("long.reg")}), 0);
    EXPECT_EQ(Change({"BluetoothName=" + megabyte + 'z'}), 0);
    for (const char* option : {"--raw", "--secrets"}) {
        EXPECT_EQ(Diff("reg:" + File("long.reg"), StoreAddress(), {option}), 1);
        EXPECT_LT(m_out.size(), 2000U);
    }
    EXPECT_TRUE(HasIn(m_out, "xxxy\" from character 1048557 -> ")) << m_out;
    EXPECT_EQ(Change({"Port=" + megabyte}), 2);
    EXPECT_LT(m_err.size(), 1000U);
}

TEST_F(DiffAndChangeTest, SetWarnsOfWhatNoServiceReadsLikeThis)
{
    ASSERT_NO_FATAL_FAILURE(Import("\"BaudRate\"=\"9600\"\n"));
    const std::string device(kDevice);
    const auto set = [&](std::vector<std::string> arguments) {
        arguments.insert(arguments.begin(), "set");
        EXPECT_EQ(Run(std::move(arguments)), 0) << m_err;
        ExpectNoControls();
        return m_err;
    };
    EXPECT_EQ(set({device + "\\Comm", "Port", "4"}), "");
    EXPECT_EQ(set({device + "\\Comm", "BluetoothName", "4"}), "") << "a number becomes text";
    EXPECT_EQ(Stored("Comm", "BluetoothName"), "4");
    EXPECT_EQ(Run({"ls", device + "\\Comm"}), 0);
    EXPECT_TRUE(HasIn(m_out, "BluetoothName\tREG_SZ\t4")) << m_out;
    EXPECT_EQ(set({device + "\\Comm", "BuadRate", "1"}),
              "wqspcfg: warning: \"BuadRate\" is not read by CSpCRDWQTYM1200RegInfo; did you mean BaudRate?\n");
    EXPECT_EQ(set({device + "\\comm", "baudrate", "9600"}),
              "wqspcfg: warning: the value \"baudrate\" is set as a REG_SZ, and a REG_DWORD is read: it will be "
              "ignored\n");
    EXPECT_EQ(set({device + "\\Control", "CloseOption", "77"}),
              "wqspcfg: warning: the value \"CloseOption\" is set to 77, which is not allowed; allowed: 0 eject, 1 "
              "retain, 2 leave\n");
    EXPECT_EQ(Stored("Control", "CloseOption"), "77") << "it is set all the same";
    EXPECT_TRUE(HasIn(set({device + "\\Control", "Port", "1"}), "reads it from Comm"));
    EXPECT_EQ(set({device + "\\CardUnit\\CardUnitInfo5", "Count", "5"}), "");
    // Others keep values beside those that are read.
    EXPECT_EQ(set({"HKLM\\SOFTWARE\\XFS\\SERVICE_PROVIDERS\\WQSpCRDWQTYM1200", "vendor_name", "x"}), "");
    EXPECT_EQ(set({"HKLM\\SOFTWARE\\XFS\\SERVICE_PROVIDERS\\WQSpCRDWQTYM1200", "InstalledOn", "x"}), "");
    EXPECT_EQ(set({"HKLM\\SOFTWARE\\Other", "a\x1b[", "77"}), "");
    EXPECT_TRUE(HasIn(set({"HKLM\\SOFTWARE\\XFS\\SERVICE_PROVIDERS\\WQCmnCfg\\Policy", "DevErorr", "1"}),
                      "did you mean DevError?"));
    EXPECT_TRUE(HasIn(set({device + "\\Comm", "a\x1b[\n", "1"}), "\"a<U+001B>[<U+000A>\" is not read by"));
}

#endif

} // namespace wqspcfg::tools
