// The PIN pad models.
#include "wqspcfg/models/pin/SpPINJstdE6020K02EASRegInfo.h"
#include "wqspcfg/models/pin/SpPINPrdEppRegInfo.h"
#include "wqspcfg/models/pin/SpPINXZSE8098BRegInfo.h"
#include "wqspcfg/models/pin/SpPINYMSE01RegInfo.h"

#include "support/ConfigTest.h"

#include <algorithm>

namespace {

using wqspcfg::test::ConfigTest;

class SpPINRegInfoTest : public ConfigTest
{};

TEST_F(SpPINRegInfoTest, PrdEppKeepsTheLongPressIntervalWithinItsRange)
{
    CSpPINPrdEppRegInfo config(L"Svc", false);
    const auto load = [&](DWORD dwInterval) {
        Set(Device(), L"KeyPressInteval", dwInterval);
        m_log.Clear();
        config.Load(&m_log);
        EXPECT_NE(Line(L"KeyPressInteval").find(L" : " + std::to_wstring(config.m_dwKeyPressInteval) + L"["),
                  std::wstring::npos);
        return config.m_dwKeyPressInteval;
    };
    EXPECT_EQ(load(1), 3U);
    EXPECT_EQ(load(10), 10U);
    EXPECT_EQ(load(30), 28U);
    EXPECT_EQ(load(0xFFFFFFFF), 28U);
}

TEST_F(SpPINRegInfoTest, XZSE8098BShowsItsCBCSwitchUnderTheLabelOfTheECBSwitch)
{
    CSpPINXZSE8098BRegInfo config(L"Svc", false);
    CPINRegInfo& base = config; // Load and Save are reached through the base
    Set(Device(), L"CrytDESCBCtoSM", 5);
    ASSERT_TRUE(base.Load(&m_log));
    EXPECT_EQ(config.m_dwCrytDESCBCtoSM, 5U);
    EXPECT_TRUE(Line(L"CrytDESCBCtoSM").empty());
    const auto lines = Lines();
    EXPECT_EQ(std::count_if(lines.begin(), lines.end(),
                            [](const auto& line) { return line.find(L" CrytDESECBtoSM : ") != std::wstring::npos; }),
              2);

    config.m_dwCrytDESCBCtoSM = 1;
    config.m_bEnableXZlog = true; // read only
    ClearRecord();
    base.Save();
    EXPECT_EQ(Number(Device(), L"CrytDESCBCtoSM"), 1U);
    EXPECT_EQ(Number(Device(), L"EnableXZlog"), std::nullopt);
    const auto writes = Writes();
    EXPECT_EQ(Commits(), 1U);
    const auto own =
        OfDevice({{L"", L"PostWin32PCKeyEventInGetData PostWin32PCKeyEventInGetPin DisabledPCKeyEventOfKey"},
                  {L"Comm", L"Port BaudRate MachineType"},
                  {L"", L"CrytDESECBtoSM CrytDESCBCtoSM PressKeyTimeOut MacType AtiveClearAndBaskSpaceOption "
                        L"DerivationAlgorithms PresentationAlgorithms IDKey AtivePageUpPageDownInGetData "
                        L"EarlyTerminateEnterToMaxLen PageUpToFDK PageUpToXFSKey PageDownToFDK "
                        L"LoadKeyEncKeyOfCryptCmd ReadOneKeyToMaxForceEnter PageDownToXFSKey CBHBSM"}});
    ASSERT_GT(writes.size(), own.size());
    EXPECT_EQ(std::vector(writes.end() - static_cast<std::ptrdiff_t>(own.size()), writes.end()), own);
}

TEST_F(SpPINRegInfoTest, TheModelsCapabilityValuesStandBesideThoseOfTheClass)
{
    CSpPINYMSE01RegInfo config(L"Svc", false);
    Set(Device(), L"IDKey", 2);
    Set(Device(L"Capabilities"), L"IDKey", 1);
    config.Load(nullptr);
    EXPECT_EQ(config.m_dwIDKey, 2U);
    EXPECT_EQ(config.CPINRegInfo::m_dwIDKey, 1U);
    config.Save();
    EXPECT_EQ(Number(Device(), L"IDKey"), 2U);
    EXPECT_EQ(Number(Device(L"Capabilities"), L"IDKey"), 1U);
}

TEST_F(SpPINRegInfoTest, LinesAreHexadecimalWhereTheyHaveAlwaysBeen)
{
    CSpPINJstdE6020K02EASRegInfo jstd(L"Svc", false);
    jstd.Load(&m_log);
    EXPECT_NE(Line(L"PageUpAsXFSFK").find(L" : 0x10000["), std::wstring::npos);
    CSpPINYMSE01RegInfo ymse(L"Svc", false);
    Set(Device(), L"Mac99", 1);
    ymse.Load(&m_log);
    EXPECT_NE(Line(L"Mac99").find(L" : 0x01["), std::wstring::npos);
}

} // namespace
