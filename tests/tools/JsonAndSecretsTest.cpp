#include "CommandLineTesting.h"
#include "support/StoreTesting.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <fstream>

namespace wqspcfg::tools {

namespace {

using nlohmann::json;

constexpr char kPath[] = "HKEY_LOCAL_MACHINE\\SOFTWARE\\XFS\\PHYSICAL_SERVICES\\WQSpCRDWQTYM1200";

class JsonAndSecretsTest : public CommandLineTest
{
  protected:
    json Parsed(const std::string& store, std::vector<std::string> command, const std::string& input = {})
    {
        const auto name = command.front();
        command.emplace_back("--json");
        EXPECT_EQ(RunOn(store, std::move(command), input), 0) << name << m_err;
        EXPECT_TRUE(json::accept(m_out)) << name << m_out;
        return json::parse(m_out, nullptr, false);
    }
    bool IsTold(const std::string& text) const { return (m_out + m_err).find(text) != std::string::npos; }
};

} // namespace

TEST_F(JsonAndSecretsTest, EachListingIsPrintedAsJson)
{
    const std::string hostile = "a\x1b[2J\t\xe2\x80\xae\"end";
    const auto store = Export("a.reg", "\"Port\"=dword:4\n@=\"a\x1b[2J\t\xe2\x80\xae\\\"end\"\n"
                                       "\"List\"=hex(7):61,00,00,00,62,00,00,00,00,00\n\"Bad\"=hex(1):00,d8,00,00\n");
    const auto comm = std::string(kPath) + "\\Comm";

    const auto services = Parsed(store, {"services"})["services"];
    ASSERT_EQ(services.size(), 2U);
    EXPECT_EQ(services[0], (json{{"service", "CardDispenser"},
                                 {"physical", false},
                                 {"provider", "WQSpCRDWQTYM1200"},
                                 {"classValue", "CRD"},
                                 {"deviceKey", "WQSpCRDWQTYM1200"},
                                 {"class", "CSpCRDWQTYM1200RegInfo"},
                                 {"reason", "device key name \"WQSpCRDWQTYM1200\" is the model's name"}}));
    EXPECT_EQ(services[1]["physical"], true);

    const auto keys = Parsed(store, {"ls", comm})["keys"];
    ASSERT_EQ(keys.size(), 1U);
    EXPECT_EQ(keys[0], (json{{"path", comm},
                             {"subkeys", json::array()},
                             {"values",
                              {{{"name", ""}, {"type", "REG_SZ"}, {"data", hostile}},
                               {{"name", "Bad"}, {"type", "REG_SZ"}, {"data", "\xef\xbf\xbd"}},
                               {{"name", "List"}, {"type", "REG_MULTI_SZ"}, {"data", "a\nb"}},
                               {{"name", "Port"}, {"type", "REG_DWORD"}, {"data", "4"}}}}}));
    const auto hives = Parsed(store, {"ls"})["keys"];
    ASSERT_EQ(hives.size(), 2U);
    EXPECT_EQ(hives[1], (json{{"path", "HKEY_USERS"}, {"subkeys", {".DEFAULT"}}, {"values", json::array()}}));
    const auto all = Parsed(store, {"ls", "-R"})["keys"];
    EXPECT_EQ(all.size(), 13U);
    EXPECT_TRUE(std::any_of(all.begin(), all.end(), [&](const json& each) { return each == keys[0]; }));

    EXPECT_EQ(Parsed(store, {"get", comm, ""}),
              (json{{"path", comm}, {"name", ""}, {"type", "REG_SZ"}, {"data", hostile}}));

    const auto models = Parsed("memory:", {"models"})["models"];
    const auto isThere = [&](const json& model) {
        return std::find(models.begin(), models.end(), model) != models.end();
    };
    EXPECT_TRUE(isThere({{"class", "CRegInfo"}, {"base", nullptr}, {"deviceClass", nullptr}}));
    EXPECT_TRUE(isThere({{"class", "CCRDRegInfo"}, {"base", "CRegInfo"}, {"deviceClass", "CRD"}}));

    const auto load = Parsed(store, {"load", "CardDispenser"});
    EXPECT_EQ(load["class"], "CSpCRDWQTYM1200RegInfo");
    EXPECT_EQ(load["loaded"], true);
    const auto& lines = load["lines"];
    const auto port =
        std::find_if(lines.begin(), lines.end(), [](const json& line) { return line.value("label", "") == "Port"; });
    ASSERT_NE(port, lines.end());
    EXPECT_EQ((*port)["value"], "4");
    EXPECT_NE((*port)["text"].get<std::string>().find(" : 4["), std::string::npos);

    // What is there no more than without --json.
    EXPECT_EQ(RunOn(store, {"get", comm, "None", "--json"}), 1);
    EXPECT_EQ(m_out, "");
    EXPECT_EQ(RunOn(store, {"load", "Nobody", "--json"}), 1);
    EXPECT_EQ(m_out, "");
}

// A line of the log is taken apart only where it can be read in one way.
TEST_F(JsonAndSecretsTest, ALogLineWithBracketsStaysWhole)
{
    const auto store =
        Export("a.reg", "[HKEY_LOCAL_MACHINE\\SOFTWARE\\XFS\\PHYSICAL_SERVICES\\WQSpCRDWQTYM1200\\Control]\n"
                        "\"LogicalNameOfIDCReader\"=\"a[b]\"\n");
    const auto lines = Parsed(store, {"load", "CardDispenser"})["lines"];
    const auto line = std::find_if(lines.begin(), lines.end(), [](const json& each) {
        return each["text"].get<std::string>().find(" : a[b][") != std::string::npos;
    });
    ASSERT_NE(line, lines.end());
    EXPECT_FALSE(line->contains("label")) << *line;
}

TEST_F(JsonAndSecretsTest, ADryRunIsPrintedAsJsonAndWithItsPlaces)
{
    const auto store = Export("a.reg", "\"Port\"=\"4\"\n\"Baud\x1b\"=dword:1\n");
    const auto comm = std::string(kPath) + "\\Comm";
    const json port{{"change", "change"},
                    {"path", comm},
                    {"name", "Port"},
                    {"before", {{"type", "REG_SZ"}, {"data", "4"}}},
                    {"after", {{"type", "REG_DWORD"}, {"data", "1"}}},
                    {"place", Place("a.reg", 11)}};
    const auto save = Parsed(store, {"save", "CardDispenser", "--dry-run"});
    EXPECT_EQ(save["changed"], 1);
    EXPECT_EQ(save["deleted"], 0);
    EXPECT_EQ(save["added"].get<std::size_t>() + 1, save["changes"].size());
    EXPECT_EQ(std::count(save["changes"].begin(), save["changes"].end(), port), 1) << save;
    EXPECT_EQ(RunOn(store, {"save", "CardDispenser", "--dry-run"}), 0);
    EXPECT_TRUE(IsTold("~ " + comm + "\tPort\tREG_SZ \"4\" -> REG_DWORD 1   " + Place("a.reg", 11) + '\n')) << m_out;

    const auto deleted = Parsed(store, {"delete", comm, "--dry-run"});
    EXPECT_EQ(deleted["deleted"], 3);
    EXPECT_EQ(deleted["changes"][0],
              (json{{"change", "delete"}, {"path", comm}, {"name", nullptr}, {"place", Place("a.reg", 10)}}));
    const auto imported = Parsed("memory:", {"import", "--dry-run", "-"}, "REGEDIT4\n[HKLM\\a]\n@=\"x\"\n");
    EXPECT_EQ(imported["changes"][1], (json{{"change", "add"},
                                            {"path", "HKEY_LOCAL_MACHINE\\a"},
                                            {"name", ""},
                                            {"before", nullptr},
                                            {"after", {{"type", "REG_SZ"}, {"data", "x"}}}}));
    for (const std::vector<std::string>& command :
         {std::vector<std::string>{"save", "x", "--json"}, {"import", "x", "--json"}, {"delete", comm, "--json"}}) {
        EXPECT_EQ(RunOn(store, command), 2) << "it prints nothing without --dry-run";
        EXPECT_TRUE(IsTold("--dry-run")) << m_err;
    }
}

// Also under a name that is a slip for a secret's.
TEST_F(JsonAndSecretsTest, SecretsAreShownOnRequestOnly)
{
    const auto values = [](const std::string& secret) {
        return "\"BluetoothPassWord\"=\"" + secret + "\"\n\"ProtectKey\"=hex(2):" + "68,00," +
               "00,00\n\"protectky\"=\"" + secret + "\"\n\"Protect Key\"=\"" + secret +
               "\"\n\"BluetoothPassWord \"=\"" + secret +
               "\"\n\"UseProtectKey\"=\"open\"\n\"BluetoothName\"=\"open\"\n";
    };
    const auto left = Export("a.reg", values("hunter2"));
    const auto right = Export("b.reg", values("hunter23456"));
    const auto comm = std::string(kPath) + "\\Comm";
    const std::vector<std::string> commands[] = {{"ls", comm},
                                                 {"ls", "-R", "HKLM"},
                                                 {"get", comm, "BluetoothPassWord"},
                                                 {"get", comm, "PROTECT KEY"},
                                                 {"get", comm, "BluetoothPassWord "},
                                                 {"delete", comm, "--dry-run"},
                                                 {"import", "--dry-run", File("b.reg")}};
    for (const auto& command : commands) {
        for (const bool isJson : {false, true}) {
            auto arguments = command;
            if (isJson) {
                arguments.emplace_back("--json");
            }
            EXPECT_EQ(RunOn(left, arguments), 0) << m_err;
            EXPECT_TRUE(IsTold("********")) << m_out;
            EXPECT_FALSE(IsTold("hunter")) << command.front() << m_out << m_err;
            EXPECT_TRUE(command.front() == "get" || command.front() == "import" || IsTold("open")) << m_out;
            arguments.emplace_back("--secrets");
            EXPECT_EQ(RunOn(left, arguments), 0) << m_err;
            EXPECT_TRUE(IsTold("hunter2")) << command.front() << m_out;
        }
    }
    EXPECT_EQ(RunOn(left, {"get", comm, "ProtectKy"}), 0);
    EXPECT_EQ(m_out, "********\n");
    EXPECT_EQ(m_err, "wqspcfg: the value \"ProtectKy\" is a key or a password; give --secrets to print it\n");
    EXPECT_EQ(RunOn(left, {"get", comm, "UseProtectKey"}), 0);
    EXPECT_EQ(m_out, "open\n");

    for (const auto* option : {"--raw", "--json"}) {
        std::istringstream in;
        std::ostringstream out;
        std::ostringstream err;
        EXPECT_EQ(tools::Run({"diff", left, right, "--raw", option}, in, out, err), 1);
        EXPECT_NE(out.str().find("********"), std::string::npos) << out.str();
        EXPECT_EQ((out.str() + err.str()).find("hunter"), std::string::npos) << out.str();
        EXPECT_EQ(out.str().find("bytes"), std::string::npos) << "their lengths: " << out.str();
        ResetProcess();
    }
}

// Only the program that reads such a file may know better.
TEST_F(JsonAndSecretsTest, AFileThatIsTakenAsUtf8IsNamed)
{
    const std::string text = "REGEDIT4\n[HKLM\\a]\n\"x\"=\"\xc3\xa4\"\n";
    const auto note = [](const std::string& file) {
        return "wqspcfg: " + file +
               ": REGEDIT4 does not tell the code page, and the text is read as UTF-8; give --codepage if it is in "
               "another "
               "one\n";
    };
    std::ofstream(File("a.reg"), std::ios::binary) << text;
    EXPECT_EQ(RunOn("reg:" + File("a.reg"), {"ls"}), 0);
    EXPECT_EQ(m_err, note(File("a.reg")));
    EXPECT_EQ(RunOn("reg:" + File("a.reg"), {"ls", "--codepage", "65001"}), 0);
    EXPECT_EQ(m_err, "");
    EXPECT_EQ(RunOn("memory:", {"import", "-", File("a.reg")}, text), 0);
    EXPECT_TRUE(m_err.starts_with(note("standard input") + note(File("a.reg")))) << m_err;
    EXPECT_EQ(RunOn("memory:", {"import", "-"}, "REGEDIT4\n[HKLM\\a]\n\"x\"=\"a\"\n"), 0);
    EXPECT_FALSE(IsTold("--codepage"));
    EXPECT_EQ(
        RunOn("memory:", {"import", "-"}, "Windows Registry Editor Version 5.00\n[HKLM\\a]\n\"x\"=\"\xc3\xa4\"\n"), 0);
    EXPECT_FALSE(IsTold("--codepage"));
}

#if !defined(_WIN32) // needs the embedded store, or a file of the system

TEST_F(JsonAndSecretsTest, TheStateOfAStoreIsPrintedAsJson)
{
    MakeTerminal();
    const auto status = Parsed(StoreAddress(), {"status", "--verify"});
    EXPECT_EQ(status["file"], File("store") + "/data.mdb");
    EXPECT_EQ(status["size"], std::filesystem::file_size(File("store") + "/data.mdb"));
    EXPECT_EQ(status["writer"], nullptr);
    EXPECT_EQ(status["readers"], json::array());
    EXPECT_EQ(status["sound"], true);
    EXPECT_EQ(status["values"], 4);
    EXPECT_EQ(status["lastCommit"].get<std::string>().size(), 20U);
    EXPECT_FALSE(Parsed(StoreAddress(), {"status"}).contains("sound"));

    ASSERT_EQ(Run({"backup", File("b")}), 0);
    ASSERT_EQ(Run({"set", kComm, "BaudRate", "1200"}), 0);
    const auto restored = Parsed(StoreAddress(), {"restore", "--dry-run", File("b")});
    EXPECT_EQ(restored["changes"][0]["after"]["data"], "38400");

    auto content = test::ReadFile(File("store") + "/data.mdb");
    for (std::size_t at = 0; (at = content.find(std::string("W\0Q\0S\0p\0C\0", 10), at)) != std::string::npos;) {
        content[at] ^= 1; // in a value's text, also where it stood before
    }
    test::WriteFile(File("store") + "/data.mdb", content);
    EXPECT_EQ(Run({"status", "--verify", "--json"}), 1);
    EXPECT_EQ(json::parse(m_out)["sound"], false);
    EXPECT_NE(json::parse(m_out)["damage"], "");
}

TEST_F(JsonAndSecretsTest, SetDoesNotRepeatASecret)
{
    EXPECT_EQ(Run({"set", "HKLM\\a", "ProtectKey", "hunter2", "--type", "dword"}), 2);
    EXPECT_TRUE(IsTold("what is given is not a number")) << m_err;
    EXPECT_FALSE(IsTold("hunter2")) << m_err;
    EXPECT_EQ(Run({"set", "HKLM\\a", "Other", "plain", "--type", "dword"}), 2);
    EXPECT_TRUE(IsTold("\"plain\" is not a number")) << m_err;
}

TEST_F(JsonAndSecretsTest, AChangeThatCannotBeToldIsMadeAllTheSame)
{
    MakeTerminal();
    for (const bool isDryRun : {true, false}) {
        std::istringstream in;
        std::ofstream full("/dev/full");
        std::ostringstream err;
        std::vector<std::string> arguments{"--store", StoreAddress(), "change", "Svc", "BaudRate=1200"};
        if (isDryRun) {
            arguments.emplace_back("--dry-run");
        }
        EXPECT_EQ(tools::Run(arguments, in, full, err), 3);
        ResetProcess();
        const bool isToldAsMade = err.str().find("the change was made; only its lines") != std::string::npos;
        EXPECT_EQ(isToldAsMade, !isDryRun) << err.str();
        EXPECT_EQ(Run({"get", kComm, "BaudRate"}), 0);
        EXPECT_EQ(m_out, isDryRun ? "38400\n" : "1200\n");
    }
}

#endif

} // namespace wqspcfg::tools
