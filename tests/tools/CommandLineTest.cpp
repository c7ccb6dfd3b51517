#include "wqspcfg/tools/CommandLine.h"

#include "support/ConfigTest.h"
#include "wqspcfg/platform/store/Session.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>

namespace wqspcfg::tools {

namespace {

constexpr char kService[] = "HKLM\\SOFTWARE\\XFS\\SERVICE_PROVIDERS\\Phys";
constexpr char kLogical[] = "HKEY_USERS\\.DEFAULT\\XFS\\LOGICAL_SERVICES\\Svc";
constexpr char kComm[] = "HKLM\\SOFTWARE\\XFS\\PHYSICAL_SERVICES\\WQSpCRDWQTYM1200\\Comm";

// Each test has a directory of its own. On Windows, which has no embedded store, the file that the commands work on is
// a registry export.
class CommandLineTest : public test::ConfigTest
{
  protected:
    CommandLineTest()
        : m_directory(std::filesystem::temp_directory_path() /
                      ("wqspcfg-" + std::string(::testing::UnitTest::GetInstance()->current_test_info()->name())))
    {
        std::filesystem::remove_all(m_directory);
        std::filesystem::create_directories(m_directory);
    }
    ~CommandLineTest() override
    {
        std::error_code code;
        std::filesystem::remove_all(m_directory, code);
    }

    std::string File(const std::string& name) const { return (m_directory / name).string(); }
    std::string StoreAddress() const { return "lmdb:" + File("store"); }

    int RunOn(const std::string& store, std::vector<std::string> arguments, const std::string& input = {})
    {
        arguments.insert(arguments.begin(), {"--store", store});
        std::istringstream in(input);
        std::ostringstream out;
        std::ostringstream err;
        const int status = tools::Run(arguments, in, out, err);
        m_out = out.str();
        m_err = err.str();
        ResetProcess();
        return status;
    }
    int Run(std::vector<std::string> arguments, const std::string& input = {})
    {
        return RunOn(StoreAddress(), std::move(arguments), input);
    }

    void MakeTerminal()
    {
        ASSERT_EQ(Run({"set", kLogical, "Provider", "Phys"}), 0) << m_err;
        ASSERT_EQ(Run({"set", kLogical, "Class", "CRD"}), 0);
        ASSERT_EQ(Run({"set", kService, "Executable", "WQSpCRDWQTYM1200.exe"}), 0);
        ASSERT_EQ(Run({"set", kComm, "BaudRate", "38400"}), 0);
    }

    std::filesystem::path m_directory;
    std::string m_out;
    std::string m_err;
};

} // namespace

TEST_F(CommandLineTest, WrongUsageIsStatus2)
{
    for (const std::vector<std::string>& arguments : {std::vector<std::string>{},
                                                      {"nonsense"},
                                                      {"get"},
                                                      {"get", "HKLM\\a"},
                                                      {"backup"},
                                                      {"restore", "a", "b"},
                                                      {"get", "NOHIVE\\a", "b"},
                                                      {"set", "HKLM\\a", "b", "1", "--type", "qword"},
                                                      {"delete", "HKLM"},
                                                      {"reference", "--format", "pdf"},
                                                      {"load", "x", "--nonsense"},
                                                      {"get", "HKLM\\a", "\xff"}}) {
        std::istringstream in;
        std::ostringstream out;
        std::ostringstream err;
        EXPECT_EQ(tools::Run(arguments, in, out, err), 2) << (arguments.empty() ? "" : arguments.front());
        EXPECT_EQ(out.str(), "");
        EXPECT_NE(err.str(), "");
    }
    EXPECT_EQ(Run({"--help"}), 0);
    EXPECT_NE(m_out.find("Exit status"), std::string::npos);
}

TEST_F(CommandLineTest, AStoreThatCannotBeOpenedIsStatus3AndIsNamed)
{
    for (const std::vector<std::string>& arguments : {std::vector<std::string>{"get", "HKLM\\a", "b"},
                                                      {"ls"},
                                                      {"export"},
                                                      {"backup", File("b")},
                                                      {"services"},
                                                      {"load", "Svc"},
                                                      {"save", "Svc"},
                                                      {"delete", "HKLM\\a"}}) {
        EXPECT_EQ(Run(arguments), 3) << arguments.front();
        EXPECT_NE(m_err.find(File("store")), std::string::npos) << m_err;
        EXPECT_EQ(m_out, "");
    }
    EXPECT_FALSE(std::filesystem::exists(File("store")));
    EXPECT_EQ(RunOn("reg:" + File("none.reg"), {"ls"}), 3);
    EXPECT_EQ(RunOn("nonsense", {"ls"}), 3);
    EXPECT_EQ(Run({"import", File("none.reg")}), 3);
    EXPECT_EQ(RunOn("memory:", {"backup", File("b")}), 3);
    EXPECT_NE(m_err.find("memory:"), std::string::npos) << m_err;
    EXPECT_FALSE(std::filesystem::exists(File("b")));
    EXPECT_EQ(RunOn("memory:", {"restore", File("b")}), 3);
}

#if !defined(_WIN32)
TEST_F(CommandLineTest, ValuesAreSetShownAndDeleted)
{
    EXPECT_EQ(Run({"set", "HKLM\\Software\\Vexo", "Count", "0x10"}), 0) << m_err;
    EXPECT_EQ(Run({"get", "HKEY_LOCAL_MACHINE\\SOFTWARE\\vexo\\", "COUNT"}), 0);
    EXPECT_EQ(m_out, "16\n");
    // A value keeps its type, and a new one takes that of its data.
    EXPECT_EQ(Run({"set", "HKLM\\Software\\Vexo", "Count", "many"}), 2);
    EXPECT_EQ(Run({"set", "HKLM\\Software\\Vexo", "Id", "007"}), 0);
    EXPECT_EQ(Run({"set", "HKLM\\Software\\Vexo", "Id", "8"}), 0);
    EXPECT_EQ(Run({"set", "HKLM\\Software\\Vexo", "Text", "", "--type", "sz"}), 0);
    EXPECT_EQ(Run({"set", "HKLM\\Software\\Vexo", "Big", "4294967296", "--type", "dword"}), 2);
    EXPECT_EQ(Run({"set", "HKLM\\Software\\Vexo", "", "--", "-5"}), 0) << m_err;
    EXPECT_EQ(Run({"set", "HKLM\\Software\\Vexo\\Sub", "\xe5\x90\x8d", "\xe5\x80\xbc"}), 0);
    EXPECT_EQ(Run({"ls", "HKLM\\Software\\Vexo"}), 0);
    EXPECT_EQ(m_out, "Sub\\\n(default)\tREG_SZ\t-5\nCount\tREG_DWORD\t16\nId\tREG_SZ\t8\nText\tREG_SZ\t\n");
    EXPECT_EQ(Run({"ls"}), 0);
    EXPECT_EQ(m_out, "HKEY_LOCAL_MACHINE\\\n");

    EXPECT_EQ(Run({"delete", "HKLM\\Software\\Vexo", "Count"}), 0);
    EXPECT_EQ(Run({"get", "HKLM\\Software\\Vexo", "Count"}), 1);
    EXPECT_EQ(Run({"delete", "HKLM\\Software\\Vexo", "Count"}), 1);
    EXPECT_EQ(Run({"delete", "HKLM\\Software\\Vexo"}), 0);
    EXPECT_EQ(Run({"delete", "HKLM\\Software\\Vexo"}), 1);
    EXPECT_EQ(Run({"ls", "HKLM\\Software\\Vexo"}), 1);
    EXPECT_EQ(Run({"export", "HKLM\\Software\\Vexo"}), 1);
}

TEST_F(CommandLineTest, ExportsComeBackTheSame)
{
    const auto terminal = std::filesystem::path(WQSPCFG_SOURCE_DIR) / "examples" / "terminal.reg";
    ASSERT_EQ(Run({"import", terminal.string()}), 0) << m_err;
    ASSERT_EQ(Run({"export", "-o", File("all.reg")}), 0) << m_err;
    EXPECT_EQ(m_out, "");
    ASSERT_EQ(Run({"export"}), 0);
    const auto whole = m_out;
    ASSERT_EQ(RunOn("lmdb:" + File("second"), {"import", "-"}, whole), 0) << m_err;
    ASSERT_EQ(RunOn("lmdb:" + File("second"), {"export"}), 0);
    EXPECT_TRUE(m_out == whole);
    EXPECT_EQ(RunOn("reg:" + File("all.reg"), {"export"}), 0);
    EXPECT_TRUE(m_out == whole);
    EXPECT_FALSE(std::filesystem::exists(File("all.reg.tmp")));

    // An export that fails leaves the file that is there.
    EXPECT_EQ(Run({"export", "HKLM\\None", "-o", File("all.reg")}), 1);
    EXPECT_EQ(std::filesystem::file_size(File("all.reg")), whole.size());
    EXPECT_EQ(Run({"export", "-o", File("none/all.reg")}), 3);

    // Nothing of a damaged file is imported.
    EXPECT_EQ(Run({"import", "-"}, "REGEDIT4\n[HKEY_LOCAL_MACHINE\\New]\n\"a\"=dword:1\n\"b\"=dword:xyz\n"), 3);
    EXPECT_NE(m_err.find("standard input"), std::string::npos) << m_err;
    EXPECT_NE(m_err.find('4'), std::string::npos) << m_err;
    EXPECT_EQ(Run({"ls", "HKLM\\New"}), 1);
}

TEST_F(CommandLineTest, ABackupBringsTheStoreBack)
{
    MakeTerminal();
    ASSERT_EQ(Run({"backup", File("b")}), 0) << m_err;
    EXPECT_EQ(m_out, "");
    EXPECT_NE(m_err.find("4 values"), std::string::npos) << m_err;
    ASSERT_EQ(Run({"set", kComm, "BaudRate", "9600"}), 0);
    ASSERT_EQ(Run({"restore", File("b")}), 0) << m_err;
    ASSERT_EQ(Run({"get", kComm, "BaudRate"}), 0);
    EXPECT_EQ(m_out, "38400\n");
    ASSERT_EQ(RunOn("lmdb:" + File("other"), {"restore", File("b")}), 0) << m_err;
    EXPECT_EQ(RunOn("lmdb:" + File("other"), {"get", kComm, "BaudRate"}), 0);
    EXPECT_EQ(m_out, "38400\n");
    EXPECT_EQ(Run({"restore", File("other") + "/lock.mdb"}), 3);
    EXPECT_NE(m_err.find("lock.mdb"), std::string::npos) << m_err;

    // What a link leads to is written, and the link stays; a device is no file to be exchanged for another.
    std::ofstream(File("target")).close();
    std::filesystem::create_symlink(File("target"), File("link"));
    for (const auto* command : {"backup", "export"}) {
        std::filesystem::resize_file(File("target"), 0);
        ASSERT_EQ(Run(command == std::string("backup") ? std::vector<std::string>{command, File("link")}
                                                       : std::vector<std::string>{command, "-o", File("link")}),
                  0)
            << m_err;
        EXPECT_TRUE(std::filesystem::is_symlink(File("link")));
        EXPECT_GT(std::filesystem::file_size(File("target")), 0U);
    }
    EXPECT_EQ(Run({"export", "-o", "/dev/full"}), 3);
    EXPECT_TRUE(std::filesystem::is_character_file("/dev/full"));
}

TEST_F(CommandLineTest, AServiceIsLoadedByTheModelThatItTells)
{
    MakeTerminal();
    EXPECT_EQ(Run({"services"}), 0);
    EXPECT_EQ(m_out,
              "Svc\tlogical\tCRD\tWQSpCRDWQTYM1200\tCSpCRDWQTYM1200RegInfo\tdevice key name \"WQSpCRDWQTYM1200\" "
              "is the model's name\n"
              "Phys\tphysical\t\tWQSpCRDWQTYM1200\tCSpCRDWQTYM1200RegInfo\tdevice key name \"WQSpCRDWQTYM1200\" "
              "is the model's name\n");
    ASSERT_EQ(Run({"load", "Svc"}), 0) << m_err;
    EXPECT_NE(m_err.find("CSpCRDWQTYM1200RegInfo"), std::string::npos);
    EXPECT_NE(m_out.find("\n[CFG]                                 BaudRate : 38400["), std::string::npos);
    EXPECT_TRUE(m_out.starts_with("[CFG] "));
    ASSERT_EQ(Run({"load", "Phys", "--physical", "--model", "ccrdreginfo"}), 0) << m_err;
    EXPECT_EQ(m_out.find("BaudRate"), std::string::npos);

    EXPECT_EQ(Run({"load", "Phys"}), 1);
    EXPECT_NE(m_err.find("--physical"), std::string::npos);
    EXPECT_EQ(Run({"load", "None"}), 1);
    EXPECT_EQ(Run({"load", "Svc", "--model", "CNone"}), 2);
    EXPECT_EQ(Run({"load", "Svc", "--model", "CSpFPCRegInfo"}), 2);
    // Its keyboard agent is missing.
    EXPECT_EQ(Run({"load", "Svc", "--model", "CSIURegInfo"}), 1);
}

TEST_F(CommandLineTest, SavingWritesWhatWasLoaded)
{
    MakeTerminal();
    ASSERT_EQ(Run({"save", "Svc"}), 0) << m_err;
    EXPECT_EQ(m_out, "");
    EXPECT_EQ(Run({"get", kComm, "Port"}), 0);
    EXPECT_EQ(m_out, "1\n");
    EXPECT_EQ(Run({"get", kComm, "BaudRate"}), 0);
    EXPECT_EQ(m_out, "38400\n");
    EXPECT_EQ(Run({"save", "Svc", "--model", "CSIURegInfo"}), 1);
    EXPECT_EQ(Run({"save", "None", "--model", "CCRDRegInfo"}), 1);

    ASSERT_EQ(Run({"export", "-o", File("terminal.reg")}), 0);
    EXPECT_EQ(RunOn("reg:" + File("terminal.reg"), {"load", "Svc"}), 0) << m_err;
    EXPECT_NE(m_out.find("BaudRate : 38400"), std::string::npos);
    EXPECT_EQ(RunOn("reg:" + File("terminal.reg"), {"save", "Svc"}), 3);
    EXPECT_NE(m_err.find("read-only"), std::string::npos) << m_err;
}

// What it writes on the way goes nowhere, and the rest of it reads that.
TEST_F(CommandLineTest, ALoadThatWritesLeavesAReadOnlyStoreAlone)
{
    MakeTerminal();
    const auto* const device = "HKLM\\SOFTWARE\\XFS\\PHYSICAL_SERVICES\\WQSpCRDWQTYM1200";
    const auto* const bank = "HKLM\\SOFTWARE\\XFS\\SERVICE_PROVIDERS\\CGB_Encryptor";
    ASSERT_EQ(Run({"set", device, "IsAutomaticForceUseSM", "1", "--type", "dword"}), 0) << m_err;
    ASSERT_EQ(Run({"set", bank, "UseSMAlgorithm", "1", "--type", "sz"}), 0) << m_err;
    ASSERT_EQ(Run({"export", "-o", File("terminal.reg")}), 0);
    ASSERT_EQ(Run({"load", "Svc", "--model", "CPINRegInfo"}), 0) << m_err;
    const auto lines = m_out;
    EXPECT_NE(lines.find(" ForceUseSM : 01["), std::string::npos) << lines;
    ASSERT_EQ(Run({"get", device, "ForceUseSM"}), 0);
    EXPECT_EQ(m_out, "1\n");
    ASSERT_EQ(RunOn("reg:" + File("terminal.reg"), {"load", "Svc", "--model", "CPINRegInfo"}), 0) << m_err;
    EXPECT_EQ(m_out, lines);
    EXPECT_EQ(RunOn("reg:" + File("terminal.reg"), {"get", device, "ForceUseSM"}), 1);
}

TEST_F(CommandLineTest, EveryServiceOfTheExampleTerminalIsLoadedByItsModel)
{
    const auto terminal = std::filesystem::path(WQSPCFG_SOURCE_DIR) / "examples" / "terminal.reg";
    ASSERT_EQ(Run({"import", terminal.string()}), 0) << m_err;
    ASSERT_EQ(Run({"services"}), 0);
    std::istringstream services(m_out);
    std::string line;
    int count = 0;
    while (std::getline(services, line)) {
        std::istringstream fields(line);
        std::string name;
        std::string kind;
        std::string xfsClass;
        std::string deviceKey;
        std::string model;
        std::getline(fields, name, '\t');
        std::getline(fields, kind, '\t');
        std::getline(fields, xfsClass, '\t');
        std::getline(fields, deviceKey, '\t');
        std::getline(fields, model, '\t');
        EXPECT_TRUE(model.starts_with("CSp") || xfsClass == "VDM") << line;
        std::vector<std::string> arguments{"load", name};
        if (kind == "physical") {
            arguments.emplace_back("--physical");
        }
        EXPECT_EQ(Run(arguments), 0) << line << '\n' << m_err;
        ++count;
    }
    EXPECT_EQ(count, 27);
}
#endif

} // namespace wqspcfg::tools
