#include "HiveTesting.h"
#include "support/TestPaths.h"
#include "tools/CommandLineTesting.h"

#include <gmock/gmock.h>

namespace wqspcfg::tools {

namespace {

using ::testing::HasSubstr;

// The example's registry as an export, in an embedded store and on a disk.
class HiveCommandsTest : public CommandLineTest
{
  protected:
    HiveCommandsTest()
    {
        EXPECT_EQ(Run({"import", m_file}), 0) << m_err;
        test::WriteHives(*test::Open(m_export), m_directory);
    }

    std::string m_file = std::string(test::kSourceDirectory) + "/examples/terminal.reg";
    std::string m_export = "reg:" + m_file;
    std::string m_disk = "hive:" + m_directory.string();
};

} // namespace

TEST_F(HiveCommandsTest, TellTheSameAsOfAnotherStore)
{
    for (const std::vector<std::string>& arguments : {std::vector<std::string>{"services"},
                                                      {"load", "CardDispenser"},
                                                      {"load", "IDCardUnit"},
                                                      {"explain", "CardDispenser", "--json"},
                                                      {"check"},
                                                      {"save", "CardDispenser", "--dry-run"},
                                                      {"export", "HKLM\\SOFTWARE\\XFS"},
                                                      {"export"},
                                                      {"ls", "HKEY_USERS", "-R"},
                                                      {"change", "CardDispenser", "Port=7", "--dry-run"}}) {
        const auto expected = Run(arguments);
        const auto out = m_out;
        const auto err = m_err;
        EXPECT_EQ(RunOn(m_disk, arguments), expected) << arguments.front();
        EXPECT_TRUE(m_out == out) << arguments.front();
        EXPECT_EQ(m_err, err);
        EXPECT_FALSE(out.empty() && arguments.front() != "check") << err;
    }
    EXPECT_EQ(RunAlone({"diff", m_export, m_disk}), 0) << m_out << m_err;
    EXPECT_EQ(RunAlone({"diff", m_export, m_disk, "--raw"}), 0) << m_out << m_err;
    ASSERT_EQ(RunOn(m_disk, {"report", "-o", File("report.html")}), 0) << m_err;
    EXPECT_THAT(test::ReadFile(File("report.html")), HasSubstr("CardDispenser"));
}

TEST_F(HiveCommandsTest, WriteNothingAndSayWhatIsNotThere)
{
    const auto before = test::ReadFile(File("SOFTWARE")) + test::ReadFile(File("DEFAULT"));
    for (const std::vector<std::string>& arguments : {std::vector<std::string>{"set", kComm, "Port", "7"},
                                                      {"delete", kComm, "Port"},
                                                      {"change", "CardDispenser", "Port=7"},
                                                      {"save", "CardDispenser"},
                                                      {"import", m_file},
                                                      {"status"},
                                                      {"compact"},
                                                      {"backup", File("b")}}) {
        EXPECT_EQ(RunOn(m_disk, arguments), 3) << arguments.front();
        EXPECT_THAT(m_err, HasSubstr(m_disk)) << arguments.front();
    }
    // Nor does another command replace a file of the disk, logs and hives that are not read included.
    for (const auto* name : {"DEFAULT.LOG1", "SYSTEM"}) {
        std::filesystem::copy_file(File("DEFAULT"), File(name));
    }
    for (const auto* name : {"SOFTWARE", "DEFAULT", "DEFAULT.LOG1", "SYSTEM"}) {
        EXPECT_EQ(RunOn(m_disk, {"export", "-o", File(name)}), 3) << name;
        EXPECT_EQ(RunOn(m_disk, {"report", "-o", File(name)}), 3) << name;
        EXPECT_EQ(RunOn(m_export, {"report", "--against", m_disk, "-o", File(name)}), 3) << name;
        EXPECT_THAT(m_err, HasSubstr(File(name)));
    }
    EXPECT_EQ(test::ReadFile(File("SOFTWARE")) + test::ReadFile(File("DEFAULT")), before);
    EXPECT_EQ(test::ReadFile(File("SYSTEM")), test::ReadFile(File("DEFAULT.LOG1")));
    // What comes from a file that only its owner may read is only for him.
    namespace fs = std::filesystem;
    fs::permissions(File("DEFAULT"), fs::perms::owner_read | fs::perms::owner_write);
    EXPECT_EQ(RunOn(m_disk, {"export", "-o", File("all.reg")}), 0) << m_err;
    EXPECT_EQ(fs::status(File("all.reg")).permissions() & (fs::perms::group_all | fs::perms::others_all),
              fs::perms::none);
    fs::remove(File("DEFAULT.LOG1"));
    EXPECT_EQ(RunOn(m_disk, {"services", "--codepage", "936"}), 2);

    auto image = test::ReadFile(File("SOFTWARE"));
    image[test::hive::kSequence1] = static_cast<char>(image[test::hive::kSequence1] + 1);
    test::SealHeader(image);
    test::WriteFile(File("SOFTWARE"), image);
    for (const std::vector<std::string>& arguments : {std::vector<std::string>{"services", "--store", m_disk},
                                                      {"check", "--store", m_disk},
                                                      {"diff", m_export, m_disk}}) {
        RunAlone(arguments);
        const auto at = m_err.find("did not finish writing");
        EXPECT_NE(at, std::string::npos) << arguments.front();
        EXPECT_EQ(m_err.find("did not finish writing", at + 1), std::string::npos) << m_err;
    }
    std::filesystem::remove(File("DEFAULT"));
    EXPECT_EQ(RunOn(m_disk, {"get", "HKLM\\SOFTWARE\\XFS", "none"}), 1);
    EXPECT_THAT(m_err, HasSubstr("HKEY_USERS is empty"));
    // What is damaged is no default.
    auto damaged = image;
    for (std::size_t at = 0; (at = damaged.find("vk", at)) != std::string::npos; ++at) {
        damaged[at] = 'x';
    }
    test::WriteFile(File("SOFTWARE"), damaged);
    for (const std::vector<std::string>& arguments :
         {std::vector<std::string>{"load", "WQSpCRDWQTYM1200", "--physical"}, {"export"}, {"check"}}) {
        EXPECT_EQ(RunOn(m_disk, arguments), 3) << arguments.front();
        EXPECT_THAT(m_err, HasSubstr(File("SOFTWARE") + ": the key HKEY_LOCAL_MACHINE\\SOFTWARE\\"));
    }
    test::WriteFile(File("SOFTWARE"), image.substr(0, 8192));
    EXPECT_EQ(RunOn(m_disk, {"services"}), 3);
    EXPECT_EQ(m_out, "");
    EXPECT_THAT(m_err, HasSubstr(File("SOFTWARE") + ": it is shorter"));
}

TEST_F(HiveCommandsTest, TakeTheKeysOf32BitProgramsOnRequest)
{
    {
        const auto from = test::Open(m_export);
        const auto transaction = test::Begin(*from, Access::Read);
        test::HiveWriter software(File("SOFTWARE"));
        software.Copy(*transaction, Hive::LocalMachine, L"SOFTWARE", software.AddKey(software.Root(), "WOW6432Node"));
        software.Commit();
    }
    for (const auto* command : {"services", "export"}) {
        EXPECT_EQ(RunOn(m_disk, {command}), 3);
        EXPECT_THAT(m_err, HasSubstr("give --view32"));
    }
    Run({"load", "CardDispenser"});
    const auto out = m_out;
    EXPECT_EQ(RunOn(m_disk, {"load", "CardDispenser", "--view32"}), 0) << m_err;
    EXPECT_TRUE(m_out == out);
    EXPECT_EQ(RunAlone({"diff", m_export, m_disk, "CardDispenser", "--view32"}), 0) << m_out << m_err;
}

} // namespace wqspcfg::tools
