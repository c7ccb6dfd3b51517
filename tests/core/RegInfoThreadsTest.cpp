// Getters of a loaded object from several threads while another thread saves it; for the thread sanitizer above all.
#include "support/ConfigTest.h"
#include "support/StoreTesting.h"
#include "wqspcfg/models/crd/SpCRDWQTYM1200RegInfo.h"
#include "wqspcfg/platform/store/Session.h"

#include <atomic>
#include <thread>

namespace wqspcfg::test {

namespace {

class RegInfoThreadsTest : public ConfigTest, public testing::WithParamInterface<const char*>
{};

// What every getter gives, those that read the store and those that are cached for the process.
std::vector<std::wstring> AskAll(const CRegInfo& config)
{
    int isExe = 0;
    std::vector<std::wstring> answers;
    for (const auto& text :
         {config.GetLogicalName(), config.GetPhysicalName(), config.GetClassNameW(nullptr), config.GetType(nullptr),
          config.GetDeviceClassName(nullptr, 1), config.GetDllPathName(), config.GetDllDir(1), config.GetExePathName(1),
          config.GetExeFileName(1), config.GetExeFileTitle(0), config.GetExeDllMother(1, &isExe), config.GetVersion(),
          config.GetProductVersion(), config.GetSpSettingAppID(), config.GetSPLifeCtrl(), config.GetErrorCodeDescKey(),
          config.GetCapVendorDescKey(), config.GetCapVendorDescKeyValue()}) {
        answers.emplace_back(text.View());
    }
    for (const auto number :
         {static_cast<DWORD>(isExe), config.GetReSetTimeout(L"WFS_CMD_CRD_RESET", 5), config.GetOnlyOpenReSetTimeout(),
          config.GetIdleTimeInterval(nullptr), config.GetCheckErrorRuler(L"Dispense", L"Rule"),
          config.GetResetLoadCfgPolicy(), static_cast<DWORD>(config.FindOtherSideServerName(L"none"))}) {
        answers.push_back(std::to_wstring(number));
    }
    return answers;
}

} // namespace

TEST_P(RegInfoThreadsTest, GettersAnswerWhileAnotherThreadSaves)
{
    constexpr int kThreads = 8;
    constexpr int kRounds = 100;
    const TemporaryDirectory temporary;
    const std::string address = GetParam();
    // Without the fixture's recording store: its lock would order what must not need an order.
    SetCurrentStore(Open(address == "lmdb:" ? address + temporary.File("store") : address, {.create = true}));
    Set(L".DEFAULT\\XFS\\LOGICAL_SERVICES\\Svc", L"Provider", L"Phys");
    Set(L".DEFAULT\\XFS\\LOGICAL_SERVICES\\Svc", L"Class", L"CRD");
    Set(Service(), L"ExeDllMother", L"Dev.exe");
    Set(Common(L"Policy"), L"ResetLoadCfg", 3);
    {
        CSpCRDWQTYM1200RegInfo config(L"Svc", false);
        ASSERT_TRUE(config.Load(nullptr));
        std::vector<std::vector<std::wstring>> first(kThreads);
        std::atomic<int> running{kThreads};
        std::atomic<int> different{0};
        std::vector<std::thread> threads;
        for (auto& answers : first) {
            threads.emplace_back([&config, &answers, &running, &different] {
                answers = AskAll(config);
                for (int round = 1; round < kRounds; ++round) {
                    different += AskAll(config) == answers ? 0 : 1;
                }
                --running;
            });
        }
        DWORD saves = 0;
        do {
            config.m_dwPort = ++saves;
            config.Save();
        } while (running > 0);
        for (auto& thread : threads) {
            thread.join();
        }
        EXPECT_FALSE(LastStoreError()) << LastStoreError().message;
        EXPECT_EQ(different, 0);
        const auto expected = AskAll(config);
        EXPECT_EQ(expected[1], L"Phys");
        EXPECT_EQ(expected[10], L"Dev");
        for (const auto& answers : first) {
            EXPECT_EQ(answers, expected);
        }
        EXPECT_EQ(Number(Device(L"Comm"), L"Port"), saves);
    }
    SetCurrentStore(nullptr);
}

#if defined(_WIN32)
INSTANTIATE_TEST_SUITE_P(Stores, RegInfoThreadsTest, testing::Values("memory:"));
#else
INSTANTIATE_TEST_SUITE_P(Stores, RegInfoThreadsTest, testing::Values("memory:", "lmdb:"));
#endif

} // namespace wqspcfg::test
