// Runs the program's commands within the test.
#pragma once

#include "support/ConfigTest.h"
#include "wqspcfg/tools/CommandLine.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace wqspcfg::tools {

inline constexpr char kService[] = "HKLM\\SOFTWARE\\XFS\\SERVICE_PROVIDERS\\Phys";
inline constexpr char kLogical[] = "HKEY_USERS\\.DEFAULT\\XFS\\LOGICAL_SERVICES\\Svc";
inline constexpr char kComm[] = "HKLM\\SOFTWARE\\XFS\\PHYSICAL_SERVICES\\WQSpCRDWQTYM1200\\Comm";

inline constexpr char kHead[] = "Windows Registry Editor Version 5.00\n\n"
                                "[HKEY_USERS\\.DEFAULT\\XFS\\LOGICAL_SERVICES\\CardDispenser]\n"
                                "\"Class\"=\"CRD\"\n\"Provider\"=\"WQSpCRDWQTYM1200\"\n\n"
                                "[HKEY_LOCAL_MACHINE\\SOFTWARE\\XFS\\SERVICE_PROVIDERS\\WQSpCRDWQTYM1200]\n"
                                "\"ExeDllMother\"=\"WQSpCRDWQTYM1200.exe\"\n\n"
                                "[HKEY_LOCAL_MACHINE\\SOFTWARE\\XFS\\PHYSICAL_SERVICES\\WQSpCRDWQTYM1200\\Comm]\n";

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
    // The address of a registry export of a terminal with a card dispenser, whose key Comm and what stands behind it
    // are given.
    std::string Export(const std::string& name, const std::string& comm) const
    {
        std::ofstream(File(name), std::ios::binary) << kHead << comm;
        return "reg:" + File(name);
    }
    std::string Place(const std::string& name, int line) const { return File(name) + ':' + std::to_string(line); }
    std::string StoreAddress() const { return "lmdb:" + File("store"); }

    int RunOn(const std::string& store, std::vector<std::string> arguments, const std::string& input = {})
    {
        arguments.insert(arguments.begin(), {"--store", store});
        return RunAlone(arguments, input);
    }
    // Without a store.
    int RunAlone(const std::vector<std::string>& arguments, const std::string& input = {})
    {
        std::istringstream in(input);
        std::ostringstream out;
        std::ostringstream err;
        const int status = tools::Run(arguments, in, out, err, m_outIsTerminal);
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
    bool m_outIsTerminal = false;
    std::string m_out;
    std::string m_err;
};

} // namespace wqspcfg::tools
