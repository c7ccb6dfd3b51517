#include "wqspcfg/tools/OutputFile.h"

#include "CommandLineTesting.h"
#include "support/StoreTesting.h"
#include "wqspcfg/platform/store/PosixFile.h"

#include <fcntl.h>
#include <filesystem>
#include <string>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>
#include <vector>

namespace wqspcfg::tools {

// A slip of the hand, or somebody else, must not have the store or what is read overwritten.
TEST_F(CommandLineTest, WhatIsReadAndFilesOfStoresAreNotWrittenOver)
{
    MakeTerminal();
    ASSERT_EQ(Run({"export", "-o", File("left.reg")}), 0) << m_err;
    ASSERT_EQ(Run({"export", "-o", File("right.reg")}), 0) << m_err;
    ASSERT_EQ(Run({"backup", File("backup")}), 0) << m_err;
    ASSERT_EQ(RunOn("lmdb:" + File("other"), {"restore", File("backup")}), 0) << m_err;
    std::filesystem::create_symlink("left.reg", File("link"));
    const auto left = "reg:" + File("left.reg");
    const auto right = "reg:" + File("right.reg");
    const std::pair<std::string, std::vector<std::string>> commands[] = {
        {left, {"export", "-o", File("left.reg")}},
        {left, {"export", "-o", File("link")}},
        {left, {"report", "-o", File("link")}},
        {left, {"report", "--against", right, "-o", File("right.reg")}},
        {StoreAddress(), {"export", "-o", File("store") + "/data.mdb"}},
        {StoreAddress(), {"report", "-o", File("store") + "/lock.mdb"}},
        {left, {"export", "-o", File("other") + "/data.mdb"}},
        {left, {"export", "-o", File("backup")}},
        {StoreAddress(), {"backup", File("other") + "/data.mdb"}},
        {StoreAddress(), {"backup", File("other") + "/lock.mdb"}},
        {StoreAddress(), {"backup", File("store") + "/data.mdb"}},
    };
    const auto stateOf = [](const std::string& path) {
        struct stat status = {};
        EXPECT_EQ(stat(path.c_str(), &status), 0) << path;
        // Readers take their places in a lock file.
        return std::to_string(status.st_ino) + (path.ends_with("lock.mdb") ? "" : test::ReadFile(path));
    };
    for (const auto& [address, command] : commands) {
        const auto before = stateOf(command.back());
        EXPECT_EQ(RunOn(address, command), 3) << command.back();
        EXPECT_NE(m_err.find(command.back() + " is "), std::string::npos) << m_err;
        EXPECT_TRUE(stateOf(command.back()) == before) << command.back();
    }
    EXPECT_EQ(Run({"backup", File("backup")}), 0) << m_err;

    // The page shows both stores.
    using std::filesystem::perms;
    const auto rights = [](const std::string& path) { return std::filesystem::status(path).permissions(); };
    std::filesystem::permissions(File("left.reg"), perms::owner_read | perms::owner_write | perms::others_read);
    std::filesystem::permissions(File("right.reg"), perms::owner_read | perms::owner_write);
    EXPECT_LT(RunOn(left, {"report", "--against", right, "-o", File("page")}), 2) << m_err;
    EXPECT_EQ(rights(File("page")), perms::owner_read | perms::owner_write);
}

TEST_F(CommandLineTest, NobodyReadsAlongThroughAPipe)
{
    MakeTerminal();
    const auto pipe = File("pipe");
    ASSERT_EQ(mkfifo(pipe.c_str(), 0666), 0);
    const FileDescriptor reader(open(pipe.c_str(), O_RDWR | O_NONBLOCK | O_CLOEXEC));
    char byte = 0;
    ASSERT_EQ(Run({"export", "--utf8", "-o", pipe}), 0) << m_err;
    EXPECT_EQ(read(reader.Get(), &byte, 1), 1);
    if (geteuid() != 0) {
        GTEST_SKIP() << "pipes of other users need the superuser";
    }
    while (read(reader.Get(), &byte, 1) == 1) {
    }
    ASSERT_EQ(chown(pipe.c_str(), 65534, 65534), 0);
    EXPECT_EQ(Run({"export", "--utf8", "-o", pipe}), 3);
    EXPECT_NE(m_err.find("another user"), std::string::npos) << m_err;
    EXPECT_LT(read(reader.Get(), &byte, 1), 0);
}

} // namespace wqspcfg::tools
