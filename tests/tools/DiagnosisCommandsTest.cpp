#include "CommandLineTesting.h"

#include <nlohmann/json.hpp>

#include <fstream>

#if !defined(_WIN32)
#include "support/Sanitizers.h"

#include <sys/resource.h>
#endif

namespace wqspcfg::tools {

namespace {

using nlohmann::json;

class DiagnosisCommandsTest : public CommandLineTest
{
  protected:
    // A registry export with a card dispenser and what `more` adds to its device key.
    std::string Export(const std::string& more = {}) const
    {
        const auto file = File("terminal.reg");
        std::ofstream(file, std::ios::binary)
            << "Windows Registry Editor Version 5.00\n\n"
               "[HKEY_USERS\\.DEFAULT\\XFS\\LOGICAL_SERVICES\\CardDispenser]\n"
               "\"Class\"=\"CRD\"\n\"Provider\"=\"WQSpCRDWQTYM1200\"\n\n"
               "[HKEY_LOCAL_MACHINE\\SOFTWARE\\XFS\\SERVICE_PROVIDERS\\WQSpCRDWQTYM1200]\n"
               "\"ExeDllMother\"=\"WQSpCRDWQTYM1200.exe\"\n\n"
               "[HKEY_LOCAL_MACHINE\\SOFTWARE\\XFS\\PHYSICAL_SERVICES\\WQSpCRDWQTYM1200]\n\n"
               "[HKEY_LOCAL_MACHINE\\SOFTWARE\\XFS\\PHYSICAL_SERVICES\\WQSpCRDWQTYM1200\\Comm]\n"
            << more;
        return "reg:" + file;
    }

    std::string Place(int line) const { return File("terminal.reg") + ':' + std::to_string(line); }
};

} // namespace

TEST_F(DiagnosisCommandsTest, CheckNamesFaultsWithTheirLines)
{
    const auto sound = Export("\"Port\"=dword:4\n\"BaudRate\"=dword:2580\n");
    EXPECT_EQ(RunOn(sound, {"check", "--strict"}), 0);
    EXPECT_EQ(m_out + m_err, "");

    const auto faulty = Export("\"Port\"=\"4\"\n\"BuadRate\"=dword:2580\n");
    EXPECT_EQ(RunOn(faulty, {"check"}), 1);
    EXPECT_EQ(m_out, Place(13) +
                         ": error: WQSpCRDWQTYM1200\\Comm\\Port is REG_SZ \"4\", a REG_DWORD is read: the default "
                         "1 is in effect\n" +
                         Place(14) +
                         ": warning: WQSpCRDWQTYM1200\\Comm\\BuadRate is not read by "
                         "CSpCRDWQTYM1200RegInfo; did you mean BaudRate?\n");
    EXPECT_EQ(m_err, "wqspcfg: 1 error, 1 warning\n");
    EXPECT_EQ(RunOn(faulty, {"load", "CardDispenser"}), 0);
    EXPECT_NE(m_err.find("2 findings; see `wqspcfg check CardDispenser`"), std::string::npos) << m_err;

    EXPECT_EQ(RunOn(faulty, {"check", "--json"}), 1);
    const auto out = json::parse(m_out);
    EXPECT_EQ(out["errors"], 1);
    EXPECT_EQ(out["findings"][1]["kind"], "unknownName");
    EXPECT_EQ(out["findings"][1]["name"], "BuadRate");
    EXPECT_EQ(out["findings"][1]["place"], Place(14));

    const auto slip = Export("\"BuadRate\"=dword:2580\n");
    EXPECT_EQ(RunOn(slip, {"check"}), 0) << "a warning";
    EXPECT_EQ(RunOn(slip, {"check", "--strict"}), 1);
    EXPECT_EQ(RunOn(slip, {"check", "Nobody"}), 1);
    EXPECT_NE(m_err.find("there is no service \"Nobody\""), std::string::npos) << m_err;
    EXPECT_EQ(RunOn("reg:" + File("none.reg"), {"check"}), 3);
}

// The command that a load names is one that works.
TEST_F(DiagnosisCommandsTest, AServiceIsMeantByItsProviderToo)
{
    const auto store = Export("\"Port\"=\"4\"\n\n"
                              "[HKEY_LOCAL_MACHINE\\SOFTWARE\\XFS\\SERVICE_PROVIDERS\\Lone's one]\n"
                              "\"ExeDllMother\"=\"WQSpBCRNewLand.exe\"\n\"Class\"=\"BCR\"\n"
                              "[HKEY_LOCAL_MACHINE\\SOFTWARE\\XFS\\PHYSICAL_SERVICES\\WQSpBCRNewLand\\Comm]\n"
                              "\"Port\"=\"5\"\n");
    EXPECT_EQ(RunOn(store, {"load", "WQSpCRDWQTYM1200", "--physical"}), 0) << m_err;
    EXPECT_NE(m_err.find("1 finding; see `wqspcfg check --physical WQSpCRDWQTYM1200`"), std::string::npos) << m_err;
    for (const std::vector<std::string>& command : {std::vector<std::string>{"check", "--physical", "WQSpCRDWQTYM1200"},
                                                    {"check", "wqspcrdwqtym1200"},
                                                    {"check", "CardDispenser"}}) {
        EXPECT_EQ(RunOn(store, command), 1);
        EXPECT_NE(m_out.find("Port is REG_SZ \"4\""), std::string::npos) << m_out << m_err;
        EXPECT_EQ(m_out.find("\"5\""), std::string::npos) << m_out;
    }
    EXPECT_EQ(RunOn(store, {"load", "Lone's one", "--physical"}), 0) << m_err;
#if !defined(_WIN32)
    EXPECT_NE(m_err.find("see `wqspcfg check --physical 'Lone'\\''s one'`"), std::string::npos) << m_err;
#endif
    EXPECT_EQ(RunOn(store, {"check", "--physical", "Lone's one"}), 1);
    EXPECT_NE(m_out.find("Port is REG_SZ \"5\""), std::string::npos) << m_out << m_err;
    EXPECT_EQ(RunOn(store, {"explain", "Lone's one", "Port", "--physical"}), 0) << m_err;
    EXPECT_EQ(RunOn(store, {"check", "--physical", "CardDispenser"}), 1);
    EXPECT_EQ(m_err, "wqspcfg: there is no service provider \"CardDispenser\"; `wqspcfg services` lists them\n");

    EXPECT_EQ(RunOn("memory:", {"check"}), 1);
    EXPECT_EQ(m_err, "wqspcfg: memory:: there are no XFS keys here\n");
}

TEST_F(DiagnosisCommandsTest, ExplainTellsValueOriginAndKeys)
{
    const auto store = Export("\"Port\"=\"4\"\n\"BaudRate\"=dword:9600\n\"BluetoothPassWord\"=\"hunter2\"\n");
    EXPECT_EQ(RunOn(store, {"explain", "CardDispenser", "Comm\\port"}), 0) << m_err;
    EXPECT_EQ(m_out, "Comm : Port = 1   default (REG_SZ \"4\" at " + Place(13) +
                         " ignored: a REG_DWORD is read)\n"
                         "    HKLM\\SOFTWARE\\XFS\\PHYSICAL_SERVICES\\WQSpCRDWQTYM1200\\Comm\\Port  REG_SZ \"4\"  " +
                         Place(13) +
                         "\n    default 1, saved, declared by CSpCRDWQTYM1200RegInfo\n    serial port number\n");

    EXPECT_EQ(RunOn(store, {"explain", "CardDispenser", "--changed"}), 0);
    EXPECT_NE(m_out.find("Comm           BaudRate           38400"), std::string::npos) << m_out;
    EXPECT_NE(m_out.find("********"), std::string::npos) << m_out;
    EXPECT_EQ(m_out.find("hunter2"), std::string::npos);
    EXPECT_EQ(RunOn(store, {"explain", "CardDispenser", "BluetoothPassWord", "--secrets"}), 0);
    EXPECT_NE(m_out.find("hunter2"), std::string::npos);

    EXPECT_EQ(RunOn(store, {"explain", "CardDispenser", "BaudRate", "--json"}), 0);
    const auto setting = json::parse(m_out)["settings"][0];
    EXPECT_EQ(setting["value"], 38400);
    EXPECT_EQ(setting["source"], "key");
    EXPECT_EQ(setting["asked"][0]["place"], Place(14));
    EXPECT_EQ(setting["asked"][0]["inEffect"], true);

    EXPECT_EQ(RunOn(store, {"explain", "CardDispenser", "BuadRate"}), 1);
    EXPECT_NE(m_err.find("has no setting \"BuadRate\"; did you mean \"BaudRate\"?"), std::string::npos) << m_err;
    EXPECT_EQ(RunOn(store, {"explain", "Nobody"}), 1);
}

TEST_F(DiagnosisCommandsTest, ExplainTellsOfOneEntryOfAKeyThatIsReadWhole)
{
    const auto store = Export("\"Port\"=dword:4\n\n"
                              "[HKEY_LOCAL_MACHINE\\SOFTWARE\\XFS\\PHYSICAL_SERVICES\\WQSpCRDWQTYM1200\\"
                              "CheckErrorHandler]\n\"WFS_CMD_CRD_EJECT\"=\"SafeDoor=1\"\n\"Other\"=\"x\"\n");
    EXPECT_EQ(RunOn(store, {"explain", "CardDispenser", "CheckErrorHandler\\WFS_CMD_CRD_EJECT"}), 0) << m_err;
    EXPECT_EQ(m_out.substr(0, m_out.find("    default")),
              "CheckErrorHandler: every value of the key   device key\n  WFS_CMD_CRD_EJECT = \"SafeDoor=1\"   device "
              "key, " +
                  Place(16) + '\n');
    EXPECT_EQ(RunOn(store, {"explain", "CardDispenser", "wfs_cmd_crd_eject", "--changed"}), 0) << m_err;
    EXPECT_NE(m_out.find("\"SafeDoor=1\"           device key, " + Place(16)), std::string::npos) << m_out;
    EXPECT_EQ(m_out.find("Other"), std::string::npos) << m_out;
    EXPECT_EQ(RunOn(store, {"explain", "CardDispenser", "CheckErrorHandler\\WFS_CMD_CRD_EJECT", "--json"}), 0);
    const auto settings = json::parse(m_out)["settings"];
    ASSERT_EQ(settings.size(), 1U);
    EXPECT_EQ(settings[0]["entries"], json({{"WFS_CMD_CRD_EJECT", "SafeDoor=1"}}));
    EXPECT_EQ(settings[0]["asked"][0]["inEffect"], true);
    EXPECT_EQ(RunOn(store, {"explain", "CardDispenser", "CheckErrorHandler\\WFS_CMD_CRD_RESET"}), 0);
    EXPECT_NE(m_out.find("WFS_CMD_CRD_RESET  missing"), std::string::npos) << m_out;
    EXPECT_EQ(RunOn(store, {"explain", "CardDispenser", "CheckErrorHandler\\CheckLevl"}), 1);
    EXPECT_NE(m_err.find("did you mean \"CheckErrorHandler\\CheckLevel\"?"), std::string::npos) << m_err;
    EXPECT_EQ(RunOn(store, {"explain", "CardDispenser", ""}), 2);
}

TEST_F(DiagnosisCommandsTest, ALoadCountsTheFindingsOfAClassThatIsGivenToo)
{
    const auto store = Export("\"Port\"=\"4\"\n\n"
                              "[HKEY_USERS\\.DEFAULT\\XFS\\LOGICAL_SERVICES\\-x]\n"
                              "\"Class\"=\"CRD\"\n\"Provider\"=\"WQSpCRDWQTYM1200\"\n");
    EXPECT_EQ(RunOn(store, {"load", "CardDispenser", "--model", "CSpCRDWQTYM1200RegInfo"}), 0) << m_err;
    EXPECT_NE(m_err.find("1 finding; see `wqspcfg check CardDispenser`"), std::string::npos) << m_err;
    EXPECT_EQ(RunOn(store, {"load", "CardDispenser", "--model", "CCRDRegInfo"}), 0) << m_err;
    EXPECT_EQ(m_err.find("finding"), std::string::npos) << "check would look at it as another class";
    EXPECT_EQ(RunOn(store, {"load", "--", "-x"}), 0) << m_err;
    EXPECT_NE(m_err.find("see `wqspcfg check -- -x`"), std::string::npos) << m_err;
    EXPECT_EQ(RunOn(store, {"check", "--", "-x"}), 1) << m_err;
}

// A terminal is shown what it can show; JSON is well-formed whatever is stored.
TEST_F(DiagnosisCommandsTest, HostileTextStaysText)
{
    const std::string hostile = "\"Port\"=\"a\\\\r\x1b[31m\xe2\x80\xae" + std::string(1 << 20, 'x') +
                                "\"\n"
                                "\"ev\\\\il\x1b[2J\"=\"<script>\"\n"
                                // a lone surrogate
                                "\"BluetoothName\"=hex(1):00,d8,0a,00,1b,00,00,00\n"
                                "[HKEY_LOCAL_MACHINE\\SOFTWARE\\XFS\\PHYSICAL_SERVICES\\WQSpCRDWQTYM1200\\<b>]\n"
                                "\"x\"=dword:1\n";
    const auto store = Export(hostile);
    for (const std::vector<std::string>& command :
         {std::vector<std::string>{"check"}, {"explain", "CardDispenser"}, {"explain", "CardDispenser", "--changed"}}) {
        RunOn(store, command);
        const auto all = m_out + m_err;
        EXPECT_NE(all, "");
        EXPECT_EQ(all.find('\x1b'), std::string::npos);
        EXPECT_EQ(all.find("\xe2\x80\xae"), std::string::npos);
        EXPECT_LT(all.size(), 200000U);
        auto json = command;
        json.emplace_back("--json");
        RunOn(store, json);
        EXPECT_TRUE(json::accept(m_out)) << command.front();
    }
}

#if !defined(_WIN32) // that tells how much memory was used

// The name of a key is made of it, and it has far more levels than a key can have.
TEST_F(DiagnosisCommandsTest, ATextOfManyBackslashesCostsNoMoreThanItsLength)
{
    const auto peak = [] {
        rusage usage{};
        getrusage(RUSAGE_SELF, &usage);
        return usage.ru_maxrss; // in KB
    };
    std::string levels;
    for (int i = 0; i < 20000; ++i) {
        levels += "\\\\a";
    }
    const auto store = Export("[HKEY_LOCAL_MACHINE\\SOFTWARE\\XFS\\SERVICE_PROVIDERS\\WQSpCRDWQTYM1200]\n"
                              "\"ExeDllMother\"=\"C:" +
                              levels + "\"\n");
    const auto before = peak();
    for (const std::vector<std::string>& command :
         {std::vector<std::string>{"load", "CardDispenser"}, {"check"}, {"report"}}) {
        EXPECT_EQ(RunOn(store, command), command.front() == "load" ? 0 : 1) << m_err.substr(0, 300);
    }
    if (!test::kSanitized) {
        EXPECT_LT(peak() - before, 200 * 1024);
    }
    EXPECT_EQ(RunOn(store, {"save", "CardDispenser", "--dry-run"}), 3);
    EXPECT_NE(m_err.find(" levels; the registry has 512 at most"), std::string::npos) << m_err.substr(0, 300);
    EXPECT_LT(m_err.size(), 3000U);
}

#endif

// The README's example, as it stands there.
TEST_F(DiagnosisCommandsTest, TheExampleOfTheReadmeRuns)
{
#if defined(_WIN32)
    GTEST_SKIP() << "the example works on an embedded store";
#else
    std::ifstream file(std::filesystem::path(WQSPCFG_SOURCE_DIR) / "README.md");
    std::string line;
    std::string expected;
    std::size_t commands = 0;
    m_out.clear();
    while (std::getline(file, line)) {
        const bool isCommand = line.starts_with("    $ wqspcfg ");
        if (commands != 0 && (isCommand || line.empty())) {
            EXPECT_EQ(m_out, expected) << "before: " << line;
            expected.clear();
        }
        if (isCommand) {
            std::vector<std::string> arguments;
            std::istringstream words(line.substr(14));
            for (std::string word; words >> word;) {
                if (word.starts_with('\'')) {
                    word = word.substr(1, word.size() - 2);
                }
                if (word == "examples/faulty.reg") {
                    word = std::string(WQSPCFG_SOURCE_DIR) + '/' + word;
                } else if (word.ends_with(".html")) {
                    word = File("report.html");
                }
                arguments.push_back(word);
            }
            const bool isSound = arguments.front() != "check" || arguments.size() > 1;
            EXPECT_EQ(Run(arguments), isSound ? 0 : 1) << line << '\n' << m_err;
            ++commands;
        } else if (commands != 0 && line.empty()) {
            break;
        } else if (commands != 0) {
            expected += line.substr(4) + '\n';
        }
    }
    EXPECT_EQ(commands, 7U);
    EXPECT_GT(std::filesystem::file_size(File("report.html")), 10000U);
#endif
}

} // namespace wqspcfg::tools
