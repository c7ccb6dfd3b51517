#include "wqspcfg/tools/CommandLine.h"

#include "CommandLineTesting.h"
#include "support/ConfigTest.h"
#include "support/StoreTesting.h"
#include "support/TestPaths.h"
#include "wqspcfg/platform/store/Maintenance.h"
#include "wqspcfg/platform/store/Session.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <sstream>
#include <thread>

namespace wqspcfg::tools {

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
                                                      {"get", "HKLM\\a", "\xff"},
                                                      {"export", "-o", ""},
                                                      {"report", "-o", ""},
                                                      {"backup", ""},
                                                      {"restore", ""},
                                                      {"import", ""}}) {
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

TEST_F(CommandLineTest, MistakesAreNamedWithWhatWasMeant)
{
    const std::pair<std::vector<std::string>, const char*> mistakes[] = {
        {{"improt"}, "unknown command \"improt\"; did you mean \"import\"?"},
        {{"lods", "x"}, "unknown command \"lods\"; did you mean \"load\"?"},
        {{"help", "serivces"}, "unknown command \"serivces\"; did you mean \"services\"?"},
        {{"-v"}, "unknown option -v"},
        {{}, "no command is given"},
        {{"get", "HKLM\\a"}, "NAME is required; see `wqspcfg help get`"},
        {{"load", "x", "--model", "CNone"}, "there is no class \"CNone\""},
        {{"reference", "CNone"}, "there is no class \"CNone\""},
        {{"models", "--view32"}, "--view32 does not apply to models"},
        {{"ls", "--view32"}, "--view32 applies to import and to reg:, hive: and windows: stores"},
        {{"ls", "--codepage", "936"}, "--codepage applies to import and to reg: stores"},
        {{"import", "x", "--codepage", "1200"}, "code page 1200 is not known"},
        {{"ls", "a\x1b[2J\n"}, "invalid key \"a<U+001B>[2J<U+000A>\""},
    };
    for (const auto& [arguments, message] : mistakes) {
        EXPECT_EQ(RunOn("memory:", arguments), 2) << message;
        EXPECT_NE(m_err.find(message), std::string::npos) << m_err;
        EXPECT_EQ(m_out, "");
    }
    EXPECT_EQ(RunOn("", {"ls"}), 2);
    EXPECT_NE(m_err.find("--store is given an empty address"), std::string::npos) << m_err;

    // Options may stand behind the command.
    EXPECT_EQ(RunOn("nonsense", {"ls", "--store", "memory:"}), 2) << "two stores";
    std::istringstream in;
    std::ostringstream out;
    std::ostringstream err;
    EXPECT_EQ(tools::Run({"ls", "--store", "memory:"}, in, out, err), 0) << err.str();
}

// Each command has its help, and the manual page and the completion know all of them.
TEST_F(CommandLineTest, HelpComesFromOneDeclaration)
{
    ASSERT_EQ(Run({"--help"}), 0);
    std::istringstream help(m_out.substr(m_out.find("Commands:")));
    ASSERT_EQ(Run({"help", "--man"}), 0);
    const auto man = m_out;
    ASSERT_EQ(Run({"help", "--completion"}), 0);
    const auto completion = m_out;
    std::ifstream file(std::filesystem::path(WQSPCFG_SOURCE_DIR) / "README.md");
    const std::string readme(std::istreambuf_iterator<char>(file), {});
    std::string line;
    std::getline(help, line);
    int commands = 0;
    while (std::getline(help, line) && !line.empty()) {
        const auto name = line.substr(2, line.find(' ', 2) - 2);
        EXPECT_NE(man.find("\n.SS " + name), std::string::npos) << name;
        EXPECT_NE(completion.find("\n    " + name + ") words="), std::string::npos) << name;
        EXPECT_NE(readme.find("\n      " + name + ' '), std::string::npos) << name;
        ASSERT_EQ(Run({"help", name}), 0);
        EXPECT_NE(m_out.find("Usage: wqspcfg " + name), std::string::npos) << m_out;
        // Its own options are in the manual page and in the README.
        for (std::size_t at = 0; (at = m_out.find("\n  --", at)) != std::string::npos; ++at) {
            const auto option = m_out.substr(at + 3, m_out.find_first_of(" ,\n", at + 3) - at - 3);
            EXPECT_NE(completion.find(option), std::string::npos) << option;
            if (name != "help") {
                EXPECT_NE(readme.find(option), std::string::npos) << option;
            }
        }
        ++commands;
    }
    EXPECT_GE(commands, 14);
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
    for (const auto* address : {"nonsense", "lmdb:", "reg:", "hive:"}) {
        EXPECT_EQ(RunOn(address, {"ls"}), 2);
        EXPECT_NE(m_err.find(address), std::string::npos) << m_err;
    }
    EXPECT_EQ(Run({"import", File("none.reg")}), 3);
    EXPECT_EQ(RunOn("memory:", {"backup", File("b")}), 3);
    EXPECT_NE(m_err.find("memory:"), std::string::npos) << m_err;
    EXPECT_FALSE(std::filesystem::exists(File("b")));
    EXPECT_EQ(RunOn("memory:", {"restore", File("b")}), 3);
    for (std::vector<std::string> arguments :
         {std::vector<std::string>{"status"}, {"compact"}, {"backup", File("b")}, {"restore", File("b")}, {"ls"}}) {
        arguments.emplace_back("--view32");
        EXPECT_EQ(Run(arguments), 2) << arguments.front();
        EXPECT_NE(m_err.find("--view32"), std::string::npos) << m_err;
    }
#if !defined(WQSPCFG_WITH_HIVEX)
    EXPECT_EQ(RunOn("hive:" + File("config"), {"services"}), 3);
#if defined(_WIN32)
    EXPECT_NE(m_err.find("`reg load`"), std::string::npos) << m_err;
#else
    EXPECT_NE(m_err.find("without libhivex"), std::string::npos) << m_err;
#endif
#endif
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
    EXPECT_EQ(Run({"ls", "-R", "HKLM"}), 0);
    EXPECT_EQ(m_out, "Software\\\nSoftware\\Vexo\\\nSoftware\\Vexo\\(default)\tREG_SZ\t-5\n"
                     "Software\\Vexo\\Count\tREG_DWORD\t16\nSoftware\\Vexo\\Id\tREG_SZ\t8\n"
                     "Software\\Vexo\\Text\tREG_SZ\t\nSoftware\\Vexo\\Sub\\\n"
                     "Software\\Vexo\\Sub\\\xe5\x90\x8d\tREG_SZ\t\xe5\x80\xbc\n");
    EXPECT_EQ(Run({"ls"}), 0);
    EXPECT_EQ(m_out, "HKEY_LOCAL_MACHINE\\\n");

    EXPECT_EQ(Run({"delete", "HKLM\\Software\\Vexo", "Count"}), 0);
    EXPECT_EQ(Run({"get", "HKLM\\Software\\Vexo", "Count"}), 1);
    EXPECT_NE(m_err.find("the key HKLM\\Software\\Vexo has no value \"Count\""), std::string::npos) << m_err;
    EXPECT_EQ(Run({"get", "HKLM\\Software\\Vexx", "Count"}), 1);
    EXPECT_NE(m_err.find("there is no key HKLM\\Software\\Vexx"), std::string::npos) << m_err;
    EXPECT_EQ(Run({"delete", "HKLM\\Software\\Vexo", "Count"}), 1);
    EXPECT_EQ(Run({"delete", "HKLM\\Software\\Vexo"}), 2);
    EXPECT_NE(m_err.find("has 1 key below it; give --recursive"), std::string::npos) << m_err;
    EXPECT_EQ(Run({"delete", "HKLM\\Software\\Vexo\\Sub", "--dry-run"}), 0);
    EXPECT_EQ(m_out, "- HKEY_LOCAL_MACHINE\\Software\\Vexo\\Sub\\\n"
                     "- HKEY_LOCAL_MACHINE\\Software\\Vexo\\Sub\t\xe5\x90\x8d\tREG_SZ \"\xe5\x80\xbc\"\n");
    EXPECT_EQ(m_err, "0 to add, 0 to change, 2 to delete\n");
    EXPECT_EQ(Run({"delete", "HKLM\\Software\\Vexo", "--recursive"}), 0);
    EXPECT_EQ(m_err, "deleted 2 keys, 4 values\n");
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
    EXPECT_EQ(m_err, "wqspcfg: cannot write /dev/full: No space left on device\n");
    EXPECT_TRUE(std::filesystem::is_character_file("/dev/full"));
}

// Nobody reads an export who could not read the store and the file that it replaces, and no name that somebody could
// guess is written to.
TEST_F(CommandLineTest, AnExportIsAFileOfItsOwn)
{
    using std::filesystem::perms;
    const auto rights = [](const std::string& path) { return std::filesystem::status(path).permissions(); };
    MakeTerminal();
    ASSERT_EQ(Run({"export"}), 0);
    const auto content = m_out;
    std::filesystem::permissions(File("store") + "/data.mdb", perms::owner_read | perms::owner_write);
    std::ofstream(File("victim")) << "keep";
    std::filesystem::create_symlink(File("victim"), File("out.reg.tmp"));
    ASSERT_EQ(Run({"export", "-o", File("out.reg")}), 0) << m_err;
    EXPECT_TRUE(test::ReadFile(File("out.reg")) == content);
    EXPECT_EQ(rights(File("out.reg")), perms::owner_read | perms::owner_write);
    EXPECT_EQ(test::ReadFile(File("victim")), "keep");
    std::filesystem::permissions(File("store") + "/data.mdb",
                                 perms::owner_read | perms::owner_write | perms::others_read);
    ASSERT_EQ(Run({"export", "-o", File("out.reg")}), 0) << m_err;
    EXPECT_EQ(rights(File("out.reg")), perms::owner_read | perms::owner_write) << "as the old file";

    // Several at once leave a whole file.
    std::vector<std::thread> others;
    std::atomic<int> failed = 0;
    for (int i = 0; i < 4; ++i) {
        others.emplace_back([&] {
            for (int turn = 0; turn < 5; ++turn) {
                std::istringstream in;
                std::ostringstream out;
                std::ostringstream err;
                failed += tools::Run({"--store", StoreAddress(), "export", "-o", File("out.reg")}, in, out, err) != 0;
            }
        });
    }
    for (auto& other : others) {
        other.join();
    }
    EXPECT_EQ(failed, 0);
    EXPECT_TRUE(test::ReadFile(File("out.reg")) == content);
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(m_directory)) {
        names.push_back(entry.path().filename().string());
    }
    std::sort(names.begin(), names.end());
    EXPECT_EQ(names, (std::vector<std::string>{"out.reg", "out.reg.tmp", "store", "victim"}));
}

// A program that was started without its standard files opens none of its own in their place.
TEST_F(CommandLineTest, ClosedStandardFilesAreNoStoreFiles)
{
    MakeTerminal();
    const auto run = [this](const std::string& arguments) {
        std::string line = test::kProgram;
        line += " --store " + StoreAddress() + ' ' + arguments;
        return WEXITSTATUS(std::system(line.c_str()));
    };
    EXPECT_EQ(run("ls 'HKLM\\NONE' >&- 2>&-"), 1);
    EXPECT_EQ(run("load Svc <&- >&- 2>&-"), 3) << "its lines cannot be written";
    EXPECT_EQ(run("import - <&- >&- 2>&-"), 3);
    EXPECT_EQ(run("export -o " + File("out.reg") + " <&- >&- 2>&-"), 0);
    EXPECT_EQ(run("set 'HKLM\\a' x 1 >&- 2>&-"), 0);
    EXPECT_EQ(Run({"get", "HKLM\\a", "x"}), 0) << m_err;
    EXPECT_EQ(RunOn("reg:" + File("out.reg"), {"get", kComm, "BaudRate"}), 0) << m_err;
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
TEST_F(CommandLineTest, ALoadChangesTheStoreOnRequestOnly)
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
    EXPECT_EQ(Run({"get", device, "ForceUseSM"}), 1);
    ASSERT_EQ(Run({"load", "Svc", "--model", "CPINRegInfo", "--write-back"}), 0) << m_err;
    EXPECT_EQ(m_out, lines);
    ASSERT_EQ(Run({"get", device, "ForceUseSM"}), 0);
    EXPECT_EQ(m_out, "1\n");
    EXPECT_EQ(RunOn("reg:" + File("terminal.reg"), {"load", "Svc", "--model", "CPINRegInfo", "--write-back"}), 3);
    ASSERT_EQ(RunOn("reg:" + File("terminal.reg"), {"load", "Svc", "--model", "CPINRegInfo"}), 0) << m_err;
    EXPECT_EQ(m_out, lines);
    EXPECT_EQ(RunOn("reg:" + File("terminal.reg"), {"get", device, "ForceUseSM"}), 1);
}

TEST_F(CommandLineTest, StoredTextForgesNoLineAndReachesNoTerminal)
{
    MakeTerminal();
    const std::string hostile = "a\n[CFG] Port : 9\tx\r\n\x1b[2J\xe2\x80\xae"
                                "end";
    const std::string shown = "a<U+000A>[CFG] Port : 9<U+0009>x<U+000D><U+000A><U+001B>[2J<U+202E>end";
    ASSERT_EQ(Run({"set", kComm, "BaudRate", hostile, "--type", "sz"}), 0) << m_err;
    ASSERT_EQ(Run({"set", "HKLM\\SOFTWARE\\XFS\\SERVICE_PROVIDERS\\Phys", "VendorName", hostile}), 0);
    ASSERT_EQ(Run({"set", kLogical, "Class", hostile}), 0);

    ASSERT_EQ(Run({"ls", kComm}), 0);
    EXPECT_EQ(m_out, "BaudRate\tREG_SZ\t" + shown + '\n');
    ASSERT_EQ(Run({"services"}), 0);
    EXPECT_EQ(std::count(m_out.begin(), m_out.end(), '\n'), 2);
    EXPECT_NE(m_out.find("\t" + shown + "\t"), std::string::npos) << m_out;
    EXPECT_EQ(Run({"load", "Svc", "--model", "CCRDRegInfo"}), 0);
    EXPECT_NE(m_err.find(shown), std::string::npos) << m_err;
    EXPECT_EQ((m_out + m_err).find('\x1b'), std::string::npos);
    ASSERT_EQ(Run({"set", kComm, "RetainBinErr\x1b", "1"}), 0);
    EXPECT_EQ(Run({"get", kComm, "none\x1b[2J"}), 1);
    EXPECT_NE(m_err.find("none<U+001B>[2J"), std::string::npos) << m_err;

    // A pipe gets the text as it stands, a terminal what a person may see.
    ASSERT_EQ(Run({"get", kComm, "BaudRate"}), 0);
    EXPECT_EQ(m_out, hostile + '\n');
    m_outIsTerminal = true;
    ASSERT_EQ(Run({"get", kComm, "BaudRate"}), 0);
    EXPECT_EQ(m_out, shown + '\n');
    m_outIsTerminal = false;

    // In a line of the log.
    const auto* const device = "HKLM\\SOFTWARE\\XFS\\PHYSICAL_SERVICES\\WQSpCRDWQTYM1200\\Control";
    ASSERT_EQ(Run({"set", device, "LogicalNameOfIDCReader", hostile}), 0);
    ASSERT_EQ(Run({"load", "Svc"}), 0) << m_err;
    EXPECT_NE(m_out.find(" : " + shown + '['), std::string::npos) << m_out;
    EXPECT_EQ(m_out.find("\n[CFG] Port : 9"), std::string::npos);
}

TEST_F(CommandLineTest, ADryRunTellsAllAndChangesNothing)
{
    MakeTerminal();
    ASSERT_EQ(Run({"set", kComm, "Port", "4", "--type", "sz"}), 0);
    ASSERT_EQ(Run({"export"}), 0);
    const auto before = m_out;
    const auto unchanged = [&] { return Run({"export"}) == 0 && m_out == before; };

    ASSERT_EQ(Run({"save", "Svc", "--dry-run"}), 0) << m_err;
    const std::string comm = "HKEY_LOCAL_MACHINE\\SOFTWARE\\XFS\\PHYSICAL_SERVICES\\WQSpCRDWQTYM1200\\Comm";
    EXPECT_NE(m_out.find("~ " + comm + "\tPort\tREG_SZ \"4\" -> REG_DWORD 1\n"), std::string::npos) << m_out;
    EXPECT_EQ(m_out.find("BaudRate"), std::string::npos) << "saved as it stands";
    EXPECT_NE(m_out.find("\\Control\\\n"), std::string::npos) << m_out;
    EXPECT_NE(m_err.find(" to add, 1 to change, 0 to delete"), std::string::npos) << m_err;
    EXPECT_TRUE(unchanged());
    // What it told is what is done.
    const auto told = std::count(m_out.begin(), m_out.end(), '\n');
    EXPECT_GT(told, 0);

    const std::string file = "REGEDIT4\n[" + comm + "]\n\"baudrate\"=dword:00000001\n\"Port\"=-\n\"None\"=-\n" +
                             "[-HKLM\\SOFTWARE\\XFS\\SERVICE_PROVIDERS]\n[-HKLM\\None]\n[HKLM\\New\\Sub]\n@=\"\"\n";
    ASSERT_EQ(Run({"import", "--dry-run", "-"}, file), 0) << m_err;
    EXPECT_EQ(m_out, "+ HKEY_LOCAL_MACHINE\\New\\\n+ HKEY_LOCAL_MACHINE\\New\\Sub\\\n"
                     "+ HKEY_LOCAL_MACHINE\\New\\Sub\t(default)\tREG_SZ \"\"\n~ " +
                         comm + "\tBaudRate\tREG_DWORD 38400 -> REG_DWORD 1\n- " + comm +
                         "\tPort\tREG_SZ \"4\"\n- HKEY_LOCAL_MACHINE\\SOFTWARE\\XFS\\SERVICE_PROVIDERS\\\n"
                         "- HKEY_LOCAL_MACHINE\\SOFTWARE\\XFS\\SERVICE_PROVIDERS\\Phys\\\n"
                         "- HKEY_LOCAL_MACHINE\\SOFTWARE\\XFS\\SERVICE_PROVIDERS\\Phys\tExecutable\tREG_SZ "
                         "\"WQSpCRDWQTYM1200.exe\"\n");
    EXPECT_EQ(m_err, "3 to add, 1 to change, 4 to delete\n");
    EXPECT_TRUE(unchanged());
    EXPECT_EQ(Run({"import", "--dry-run", "-"}, "REGEDIT4\nx\n"), 3);

    ASSERT_EQ(Run({"backup", File("b")}), 0);
    ASSERT_EQ(Run({"set", kComm, "Port", "5"}), 0);
    ASSERT_EQ(Run({"set", "HKLM\\More", "x", "1"}), 0);
    ASSERT_EQ(Run({"restore", "--dry-run", File("b")}), 0) << m_err;
    EXPECT_EQ(m_out, "- HKEY_LOCAL_MACHINE\\More\\\n- HKEY_LOCAL_MACHINE\\More\tx\tREG_DWORD 1\n~ " + comm +
                         "\tPort\tREG_SZ \"5\" -> REG_SZ \"4\"\n");
    ASSERT_EQ(Run({"get", kComm, "Port"}), 0);
    EXPECT_EQ(m_out, "5\n");

    EXPECT_EQ(RunOn("memory:", {"restore", "--dry-run", File("b")}), 3);

    // A store that is not there yet is not made.
    ASSERT_EQ(RunOn("lmdb:" + File("none"), {"import", "--dry-run", "-"}, "REGEDIT4\n[HKLM\\a]\n"), 0) << m_err;
    EXPECT_EQ(m_out, "+ HKEY_LOCAL_MACHINE\\a\\\n");
    EXPECT_FALSE(std::filesystem::exists(File("none")));
}

TEST_F(CommandLineTest, ADryRunMasksSecrets)
{
    const std::string device = "HKLM\\SOFTWARE\\XFS\\PHYSICAL_SERVICES\\Dev";
    const auto isTold = [this](const std::string& secret) { return m_out.find(secret) != std::string::npos; };
    ASSERT_EQ(Run({"set", device, "PROTECTKEY", "oldsecret"}), 0);
    ASSERT_EQ(Run({"backup", File("b")}), 0);
    const std::string file = "REGEDIT4\n[" + device + "]\n\"ProtectKey\"=\"newsecret\"\n";
    const std::vector<std::string> commands[] = {
        {"import", "--dry-run", "-"}, {"delete", "--dry-run", device}, {"restore", "--dry-run", File("b")}};
    for (auto command : commands) {
        if (command[0] == "restore") {
            ASSERT_EQ(Run({"set", device, "ProtectKey", "newsecret"}), 0);
        }
        ASSERT_EQ(Run(command, file), 0) << m_err;
        EXPECT_TRUE(isTold("REG_SZ ********")) << m_out;
        EXPECT_FALSE(isTold("secret")) << m_out;
        command.emplace_back("--secrets");
        ASSERT_EQ(Run(command, file), 0) << m_err;
        EXPECT_TRUE(isTold("REG_SZ \"oldsecret\"")) << m_out;
    }

    MakeTerminal();
    ASSERT_EQ(Run({"set", kComm, "BluetoothPassWord", "123456", "--type", "dword"}), 0);
    ASSERT_EQ(Run({"save", "Svc", "--dry-run"}), 0) << m_err;
    EXPECT_TRUE(isTold("BluetoothPassWord\tREG_DWORD ******** -> REG_SZ ********\n")) << m_out;
}

TEST_F(CommandLineTest, ADryRunRefusesWhatTheStoreCannotTake)
{
    const std::string file = "REGEDIT4\n[HKLM\\" + std::string(250, 'k') + "\\" + std::string(250, 'l') + "]\n\"" +
                             std::string(100, 'v') + "\"=dword:1\n";
    for (const bool isThere : {false, true}) {
        ASSERT_TRUE(!isThere || Run({"set", "HKLM\\a", "b", "1"}) == 0);
        EXPECT_EQ(Run({"import", "--dry-run", "-"}, file), 3);
        const auto told = m_err;
        EXPECT_EQ(Run({"import", "-"}, file), 3);
        EXPECT_NE(told.find("standard input:3: "), std::string::npos) << told;
        EXPECT_TRUE(m_err.ends_with(told)) << told << m_err; // behind the note that the store was made
    }
    EXPECT_EQ(RunOn("memory:", {"import", "--dry-run", "-"}, file), 0) << m_err;
}

TEST_F(CommandLineTest, TellsHowAStoreIsAndCompactsIt)
{
    MakeTerminal();
    ASSERT_EQ(Run({"set", "HKLM\\Big", "b", std::string(500000, 'x')}), 0);
    ASSERT_EQ(Run({"delete", "HKLM\\Big"}), 0);
    const auto size = [this] { return std::filesystem::file_size(File("store") + "/data.mdb"); };
    const auto before = size();
    ASSERT_EQ(Run({"compact"}), 0) << m_err;
    EXPECT_EQ(m_out, "");
    EXPECT_LT(size(), before / 10);
    EXPECT_EQ(m_err, StoreAddress() + ": 11 keys, 4 values; " + std::to_string(before) + " bytes before, " +
                         std::to_string(size()) + " now\n");

    ASSERT_EQ(Run({"status"}), 0) << m_err;
    EXPECT_TRUE(m_out.starts_with("file\t" + File("store") + "/data.mdb\nsize\t" + std::to_string(size()) + " bytes\n"))
        << m_out;
    EXPECT_NE(m_out.find("\nwriting now\tnobody\nreaders\t0\n"), std::string::npos) << m_out;
    EXPECT_EQ(m_out.find("sound"), std::string::npos);
    ASSERT_EQ(Run({"status", "--verify"}), 0);
    EXPECT_NE(m_out.find("\nsound\tyes, 11 keys, 4 values\n"), std::string::npos) << m_out;

    auto content = test::ReadFile(File("store") + "/data.mdb");
    content[content.find(std::string("W\0Q\0S\0p\0C\0", 10))] ^= 1; // in a value's text
    test::WriteFile(File("store") + "/data.mdb", content);
    EXPECT_EQ(Run({"status", "--verify"}), 1);
    EXPECT_NE(m_out.find("\nsound\tno: "), std::string::npos) << m_out;
    EXPECT_EQ(Run({"compact"}), 3);
    EXPECT_NE(m_err.find("damaged"), std::string::npos) << m_err;
    EXPECT_EQ(test::ReadFile(File("store") + "/data.mdb"), content);

    for (const auto* command : {"compact", "status"}) {
        EXPECT_EQ(RunOn("memory:", {command}), 3);
        EXPECT_EQ(RunOn("lmdb:" + File("none"), {command}), 3);
        EXPECT_FALSE(std::filesystem::exists(File("none")));
    }
}

TEST_F(CommandLineTest, AnEmptyVariableIsNoStore)
{
    const auto* given = std::getenv("WQSPCFG_STORE");
    const auto kept = given != nullptr ? std::optional<std::string>(given) : std::nullopt;
    const auto list = [this] {
        std::istringstream in;
        std::ostringstream out;
        std::ostringstream err;
        const int status = tools::Run({"ls"}, in, out, err);
        m_err = err.str();
        return status;
    };
    setenv("WQSPCFG_STORE", "", 1);
    EXPECT_EQ(list(), 2);
    EXPECT_NE(m_err.find("WQSPCFG_STORE is empty"), std::string::npos) << m_err;
    setenv("WQSPCFG_STORE", "memory:", 1);
    EXPECT_EQ(list(), 0) << m_err;
    kept ? setenv("WQSPCFG_STORE", kept->c_str(), 1) : unsetenv("WQSPCFG_STORE");
}

TEST_F(CommandLineTest, AVariableThatIsNotUnderstoodIsTold)
{
    const auto errors = [this](const char* name, const char* value) {
        setenv(name, value, 1);
        EXPECT_EQ(RunOn("memory:", {"ls"}), 0);
        unsetenv(name);
        return m_err;
    };
    for (const auto* value : {"abc", "-1", "1e9", "5s", "nan"}) {
        EXPECT_NE(errors("WQSPCFG_LOCK_TIMEOUT", value).find("\"" + std::string(value) + '"'), std::string::npos);
    }
    EXPECT_NE(errors("WQSPCFG_SAVE_POLICY", "own_changes").find("own-changes or all"), std::string::npos) << m_err;
    for (const auto* value : {"", "0", "2.5"}) {
        EXPECT_EQ(errors("WQSPCFG_LOCK_TIMEOUT", value), "") << value;
    }
    EXPECT_EQ(errors("WQSPCFG_SAVE_POLICY", "own-changes"), "");
}

TEST_F(CommandLineTest, AStoreThatIsMadeIsNamed)
{
    ASSERT_EQ(Run({"import", "-"}, "REGEDIT4\n[HKLM\\a]\n\"x\"=dword:1\n"), 0) << m_err;
    EXPECT_EQ(m_err, "wqspcfg: created the store " + StoreAddress() + "\nstandard input: 1 key, 1 value\n");
    ASSERT_EQ(Run({"import", "-"}, "REGEDIT4\n[HKLM\\a]\n\"x\"=-\n\"y\"=-\n"), 0) << m_err;
    EXPECT_EQ(m_err, "standard input: 1 key, 0 values, 1 deletion\n");
    ASSERT_EQ(Run({"backup", File("b")}), 0) << m_err;
    ASSERT_EQ(RunOn("lmdb:" + File("other"), {"restore", File("b")}), 0);
    EXPECT_NE(m_err.find("created the store lmdb:" + File("other")), std::string::npos) << m_err;
    ASSERT_EQ(RunOn("lmdb:" + File("third"), {"set", "HKLM\\a", "x", "1"}), 0);
    EXPECT_NE(m_err.find("created the store lmdb:" + File("third")), std::string::npos) << m_err;
    // Of an import that fails, nothing is left.
    EXPECT_EQ(RunOn("lmdb:" + File("fourth"), {"import", "-", File("none.reg")}, "REGEDIT4\n[HKLM\\a]\n"), 3);
    EXPECT_FALSE(std::filesystem::exists(File("fourth")));
    const auto tooLong = "REGEDIT4\n[HKLM\\" + std::string(250, 'a') + '\\' + std::string(250, 'b') + '\\' +
                         std::string(250, 'c') + "]\n";
    std::filesystem::create_directory(File("given"));
    for (const auto* name : {"given", "new", "new/deep/er"}) {
        EXPECT_EQ(RunOn("lmdb:" + File(name), {"import", "-"}, tooLong), 3);
        EXPECT_NE(m_err.find("created the store"), std::string::npos) << m_err;
        EXPECT_NE(m_err.find("removed the store"), std::string::npos) << m_err;
    }
    EXPECT_TRUE(std::filesystem::is_empty(File("given")));
    EXPECT_FALSE(std::filesystem::exists(File("new")));
    // What is in it stays: a file before, a store that was there, another process's.
    std::ofstream(File("first.reg")) << "REGEDIT4\n[HKLM\\a]\n\"x\"=dword:1\n";
    EXPECT_EQ(RunOn("lmdb:" + File("fifth"), {"import", File("first.reg"), "-"}, tooLong), 3);
    EXPECT_EQ(RunOn("lmdb:" + File("fifth"), {"get", "HKLM\\a", "x"}), 0) << m_err;
    EXPECT_EQ(Run({"import", "-"}, tooLong), 3);
    EXPECT_TRUE(std::filesystem::exists(File("store") + "/data.mdb"));
    const auto used = test::Open("lmdb:" + File("sixth"), {.create = true});
    EXPECT_FALSE(RemoveNewStore("lmdb:" + File("sixth")));
    EXPECT_EQ(RunOn("lmdb:" + File("sixth"), {"ls"}), 0) << m_err;
}

TEST_F(CommandLineTest, TheKeysOf32BitProgramsAreReadOnRequest)
{
    MakeTerminal();
    ASSERT_EQ(Run({"export", "--utf8", "-o", File("t.reg")}), 0);
    std::ifstream written(File("t.reg"), std::ios::binary);
    std::string text(std::istreambuf_iterator<char>(written), {});
    for (std::size_t at = 0; (at = text.find("SOFTWARE\\XFS", at)) != std::string::npos; at += 20) {
        text.insert(at + 9, "WOW6432Node\\");
    }
    std::ofstream(File("t32.reg"), std::ios::binary) << text;
    const auto file = "reg:" + File("t32.reg");
    EXPECT_EQ(RunOn(file, {"load", "Svc"}), 3);
    EXPECT_NE(m_err.find("--view32"), std::string::npos) << m_err;
    EXPECT_EQ(RunOn(file, {"load", "Svc", "--view32"}), 0) << m_err;
    EXPECT_NE(m_out.find("BaudRate : 38400["), std::string::npos) << m_out;

    const auto plain = "lmdb:" + File("plain");
    ASSERT_EQ(RunOn(plain, {"import", File("t32.reg")}), 0) << m_err;
    for (const auto* command : {"load", "save"}) {
        EXPECT_EQ(RunOn(plain, {command, "Svc"}), 3);
        EXPECT_NE(m_err.find("import --view32"), std::string::npos) << m_err;
    }
    EXPECT_EQ(RunOn(plain, {"services"}), 3);
    EXPECT_EQ(RunOn(plain, {"get", kComm, "BaudRate"}), 1);
    ASSERT_EQ(RunOn(plain, {"import", "--view32", File("t32.reg")}), 0) << m_err;
    EXPECT_EQ(RunOn(plain, {"get", kComm, "BaudRate"}), 0);
    EXPECT_EQ(RunOn(plain, {"load", "Svc"}), 0) << m_err;
}

TEST_F(CommandLineTest, AModelThatContradictsTheServiceIsLoadedWithAWarning)
{
    MakeTerminal();
    ASSERT_EQ(Run({"load", "Svc", "--model", "CSpPTRRID100RegInfo"}), 0);
    EXPECT_NE(m_err.find("device class PTR, and the class value of the service is \"CRD\""), std::string::npos)
        << m_err;
    ASSERT_EQ(Run({"load", "Svc", "--model", "CSpCRDWQTYM1200RegInfo"}), 0);
    EXPECT_EQ(m_err, "");
    ASSERT_EQ(Run({"load", "Svc", "--model", "CRegInfo"}), 0);
    EXPECT_EQ(m_err, "");
}

// Another process sets values while this one saves: none of them is undone.
TEST_F(CommandLineTest, ASaveUndoesNoWriteOfAnother)
{
    MakeTerminal();
    ASSERT_EQ(Run({"save", "Svc"}), 0) << m_err;
    std::atomic<int> acknowledged = 0;
    std::atomic<bool> done = false;
    int undone = 0;
    std::thread other([&] {
        // A transaction of its own for each, as another process has it.
        Error error;
        const auto store = OpenStore(StoreAddress(), {}, error);
        for (unsigned i = 1; i <= 60; ++i) {
            const auto writing = store->Begin(Access::Write, error);
            KeyId key = 0;
            const std::wstring path(L"SOFTWARE\\XFS\\PHYSICAL_SERVICES\\WQSpCRDWQTYM1200\\Comm");
            ValueView value;
            if (writing->OpenKey(Hive::LocalMachine, path, key) == Outcome::Found && i > 1 &&
                (writing->Query(key, L"Port", value) != Outcome::Found ||
                 std::to_integer<unsigned>(value.data[0]) != i - 1)) {
                ++undone;
            }
            writing->SetValue(key, L"Port",
                              {ValueType::Dword, std::array{std::byte(i), std::byte{}, std::byte{}, std::byte{}}});
            if (writing->Commit(true) != Outcome::Found) {
                ++undone;
            }
            ++acknowledged;
        }
        done = true;
    });
    while (!done) {
        EXPECT_EQ(Run({"save", "Svc"}), 0) << m_err;
    }
    other.join();
    EXPECT_EQ(undone, 0) << "of " << acknowledged;
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
