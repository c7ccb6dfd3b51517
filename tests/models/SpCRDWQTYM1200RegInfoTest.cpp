#include "wqspcfg/models/crd/SpCRDWQTYM1200RegInfo.h"

#include "support/ConfigTest.h"

namespace {

using wqspcfg::test::ConfigTest;

class SpCRDWQTYM1200RegInfoTest : public ConfigTest
{};

TEST_F(SpCRDWQTYM1200RegInfoTest, AnEmptyDeviceKeyGivesTheDefaultsAndTheirLines)
{
    CSpCRDWQTYM1200RegInfo config(L"Svc", false);
    ASSERT_TRUE(config.Load(&m_log));
    EXPECT_EQ(config.m_dwPort, 1U);
    EXPECT_EQ(config.m_dwBaudRate, 9600U);
    EXPECT_EQ(config.m_dwDevType, 1200U);
    EXPECT_TRUE(config.m_bCheckRetainBinDeviceFull);
    EXPECT_EQ(Line(L"Port"), L"[CFG] " + std::wstring(36, L' ') + L"Port : 1[serial port number]");
}

TEST_F(SpCRDWQTYM1200RegInfoTest, SaveIsOneCommitInItsOwnOrderAfterTheBase)
{
    CSpCRDWQTYM1200RegInfo config(L"Svc", false);
    Set(Device(L"Control"), L"PowerOffOption", 2);
    Set(Device(L"Comm"), L"BluetoothOption", 7);
    ASSERT_TRUE(config.Load(nullptr));
    EXPECT_EQ(config.m_dwBluetoothOption, 1U);
    config.m_dwPowerOffOption = 1; // never written
    ClearRecord();
    config.Save();
    EXPECT_EQ(Commits(), 1U);
    const auto writes = Writes();
    ASSERT_EQ(writes.size(), 32U);
    EXPECT_EQ(writes[0], Device(L"Policy") + L"|IsDeleteSensetiveInfo");
    EXPECT_EQ(writes[1], Device(L"Control") + L"|UseLogicCountOfSupplyBinStatus");
    EXPECT_EQ(writes[5], Device(L"CardUnit") + L"|CurNumber");
    EXPECT_EQ(writes[6], Device(L"Control") + L"|PowerOnOption");
    EXPECT_EQ(writes[8], Device(L"Comm") + L"|Port");
    EXPECT_EQ(writes[31], Device(L"Control") + L"|SpdbfromOneWhenNotChooseSupplyBin");
    EXPECT_EQ(Number(Device(L"Control"), L"PowerOffOption"), 2U);
}

} // namespace
