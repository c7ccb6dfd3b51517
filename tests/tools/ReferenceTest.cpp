#include "wqspcfg/tools/ReferenceText.h"

#include "wqspcfg/platform/text/Utf.h"
#include "wqspcfg/tools/CommandLine.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <sstream>

namespace wqspcfg::tools {

TEST(ReferencePagesTest, TheCommittedPagesAreThoseOfTheTables)
{
    const auto folder = std::filesystem::path(WQSPCFG_SOURCE_DIR) / "docs" / "reference";
    const auto pages = ReferencePages();
    for (const auto& [name, text] : pages) {
        std::ifstream file(folder / name, std::ios::binary);
        const std::string committed{std::istreambuf_iterator<char>(file), {}};
        EXPECT_TRUE(committed == text) << name << " is stale: build the target reference_docs";
    }
    for (const auto& file : std::filesystem::directory_iterator(folder)) {
        EXPECT_TRUE(pages.contains(file.path().filename().string())) << file.path() << " is no page any more";
    }
}

TEST(ReferenceTest, JsonTellsWhatTheRowsSay)
{
    std::istringstream in;
    std::ostringstream out;
    std::ostringstream err;
    ASSERT_EQ(tools::Run({"reference", "--format", "json"}, in, out, err), 0) << err.str();
    const auto all = nlohmann::json::parse(out.str());
    ASSERT_EQ(all.at("classes").size(), AllClasses().size());
    const auto find = [&](const std::string& name) -> const nlohmann::json& {
        for (const auto& each : all.at("classes")) {
            if (each.at("class") == name) {
                return each;
            }
        }
        throw std::runtime_error(name);
    };
    const auto setting = [&](const std::string& name, const std::string& value) -> const nlohmann::json& {
        for (const auto& each : find(name).at("settings")) {
            if (each.at("value") == value) {
                return each;
            }
        }
        throw std::runtime_error(value);
    };
    EXPECT_TRUE(find("CRegInfo").at("base").is_null());
    EXPECT_TRUE(find("CSpFPCRegInfo").at("base").is_null());
    EXPECT_EQ(find("CSpCRDWQTYM1200RegInfo").at("base"), "CCRDRegInfo");
    EXPECT_EQ(find("CSpCRDWQTYM1200RegInfo").at("deviceClass"), "CRD");

    const auto& port = setting("CSpCRDWQTYM1200RegInfo", "Port");
    EXPECT_EQ(port.at("root"), "device");
    EXPECT_EQ(port.at("key"), "Comm");
    EXPECT_EQ(port.at("type"), "dword");
    EXPECT_EQ(port.at("default"), 1);
    EXPECT_EQ(port.at("saved"), true);
    EXPECT_FALSE(port.contains("constructed") || port.contains("allowed") || port.contains("secret"));
    EXPECT_EQ(setting("CSpCRDWQTYM1200RegInfo", "PowerOnOption").at("allowed"), nlohmann::json({0, 1, 2, 3}));
    EXPECT_EQ(setting("CSpCRDWQTYM1200RegInfo", "BluetoothPassWord").at("secret"), true);
    const auto& wait = setting("CCRDRegInfo", "WaitCardReMoveBeforeComplete");
    EXPECT_EQ(wait.at("type"), "flag");
    EXPECT_EQ(wait.at("default"), 0);
    EXPECT_EQ(wait.at("constructed"), 1);
    EXPECT_EQ(setting("CRegInfo", "NetTimeOut").at("root"), "common");
    // What Load does not read names the operation that does.
    const auto& simulated = setting("CSpPTRRID100RegInfo", "SimCheckNo");
    EXPECT_EQ(simulated.at("readBy"), "LoadSimData");
    EXPECT_FALSE(simulated.contains("writtenBy") || port.contains("readBy"));
    EXPECT_EQ(setting("CSpPTRRID100RegInfo", "Count").at("writtenBy"), "SaveRetainBinCount");
    // Loops appear turn by turn, and their labels with them.
    EXPECT_EQ(setting("CSPCRMWQ07RegInfo", "CasFull").at("key"), "Cassette\\Hopper\\A");
    EXPECT_EQ(setting("CSPCRMWQ07RegInfo", "CasFull").at("label"), "A.CasFull");
    EXPECT_EQ(setting("CSpSIUJMBTRegInfo", "Light2").at("value"), "Light2");
}

TEST(ReferenceTest, OneClassComesWithWhatItInherits)
{
    for (const std::string format : {"text", "markdown"}) {
        std::istringstream in;
        std::ostringstream out;
        std::ostringstream err;
        ASSERT_EQ(tools::Run({"reference", "cspcrdwqtym1200reginfo", "--format", format}, in, out, err), 0)
            << err.str();
        const auto own = out.str().find("MaxSupplyCard");
        const auto base = out.str().find("TemporaryRetainBin");
        const auto root = out.str().find("IsDeleteSensetiveInfo");
        EXPECT_LT(own, base);
        EXPECT_LT(base, root);
        EXPECT_NE(root, std::string::npos);
        EXPECT_EQ(out.str().find("CVDMRegInfo"), std::string::npos);
    }
}

} // namespace wqspcfg::tools
