#include "wqspcfg/classes/CRDRegInfo.h"

#include "support/ConfigTest.h"
#include "wqspcfg/core/settings/Reference.h"

#include <algorithm>
#include <chrono>
#include <future>
#include <set>

namespace {

using wqspcfg::Severity;
using wqspcfg::test::ConfigTest;

class CRDRegInfoTest : public ConfigTest
{
  protected:
    static std::wstring Unit(const std::wstring& name) { return Device(L"CardUnit\\" + name); }

    // The units never release their hoppers.
    struct Config : CCRDRegInfo
    {
        Config() : CCRDRegInfo(L"Svc", false) {}
        ~Config() override
        {
            for (auto& unit : m_arCardUnit) {
                unit.SetHopper(nullptr);
            }
        }
    };

    // The values of the unit's key in the order in which they were written.
    std::vector<std::wstring> WritesOf(const std::wstring& unit)
    {
        std::vector<std::wstring> names;
        for (const auto& write : Writes()) {
            if (write.starts_with(Unit(unit) + L"|")) {
                names.push_back(write.substr(Unit(unit).size() + 1));
            }
        }
        return names;
    }
};

TEST_F(CRDRegInfoTest, TheControlValuesHaveTheirLines)
{
    Set(Device(L"Control"), L"DispenseErrorRetain", 5);
    Set(Device(L"Control"), L"UseLogicCountOfSupplyBinStatus", 7);
    Config config;
    EXPECT_TRUE(config.m_bWaitCardReMoveBeforeComplete); // until the first Load
    ASSERT_TRUE(config.Load(&m_log));
    EXPECT_FALSE(config.m_bWaitCardReMoveBeforeComplete);
    EXPECT_TRUE(Line(L"UseLogicCountOfSupplyBinStatus").find(L" : 7[") != std::wstring::npos);
    EXPECT_TRUE(Line(L"DispenseErrorRetain").find(L" : 1[") != std::wstring::npos);
    EXPECT_EQ(Line(L"DispenseAfterRetainBinFull"), L"");
    EXPECT_EQ(Line(L"CurNumber"), L"");
    EXPECT_NE(Line(L"TemporaryRetainBin").back(), L']');
    for (const auto& line : Lines()) {
        EXPECT_EQ(line.find(L"[CST]"), std::wstring::npos) << "no card units, no table";
    }
}

TEST_F(CRDRegInfoTest, UnitsLoadInTheOrderOfTheirKeysAndOnlyWithANumber)
{
    Set(Unit(L"a"), L"Number", 9);
    Set(Unit(L"a"), L"CardName", L"");
    Set(Unit(L"a"), L"Type", 0x10002);
    Set(Unit(L"b"), L"Count", 5);        // no number
    Set(Unit(L"c"), L"Number", 0x10000); // nothing in the low 16 bits
    Set(Unit(L"d"), L"Number", 0x10009);
    Set(Unit(L"d"), L"Hopper", L"upper");
    Set(Unit(L"d"), L"Count", L"text");
    Set(Device(L"CardUnit"), L"CurNumber", 4);
    Config config;
    ASSERT_TRUE(config.Load(&m_log));
    ASSERT_EQ(config.m_arCardUnit.GetSize(), 2);
    config.m_arCardUnit[1].SetHopper(nullptr);
    ASSERT_TRUE(config.Load(&m_log)); // the units are rebuilt
    EXPECT_EQ(config.m_dwCurNumber, 4U);
    ASSERT_EQ(config.m_arCardUnit.GetSize(), 2);
    EXPECT_EQ(+config.m_arCardUnit[0].usNumber, 9);
    EXPECT_EQ(+config.m_arCardUnit[0].usType, 2);
    EXPECT_STREQ(+config.m_arCardUnit[0].lpszCardName, "");
    EXPECT_EQ(+config.m_arCardUnit[0].lpszHopper, nullptr);
    EXPECT_EQ(+config.m_arCardUnit[1].usNumber, 9);
    EXPECT_EQ(+config.m_arCardUnit[1].lpszCardName, nullptr);
    EXPECT_STREQ(+config.m_arCardUnit[1].lpszHopper, "upper");
    EXPECT_EQ(+config.m_arCardUnit[1].ulCount, 0U);
    EXPECT_EQ(std::count_if(m_log.Entries().begin(), m_log.Entries().end(),
                            [](const auto& entry) { return entry.text.starts_with(L"[CST]"); }),
              2);
}

TEST_F(CRDRegInfoTest, SkippedUnitsAreNotReadFurther)
{
    Set(Unit(L"x"), L"Count", 5);
    Config config;
    ClearRecord();
    config.Load(nullptr);
    const auto reads = Reads();
    EXPECT_NE(std::find(reads.begin(), reads.end(), Unit(L"x") + L"|Number"), reads.end());
    EXPECT_EQ(std::find(reads.begin(), reads.end(), Unit(L"x") + L"|Type"), reads.end());
}

TEST_F(CRDRegInfoTest, SaveWritesTheUnitsInTheirFixedOrderUnderTheirNumbers)
{
    Set(Unit(L"Old"), L"Number", 2);
    Set(Device(L"Control"), L"DispenseAfterRetainBinFull", 5);
    Config config;
    config.Load(nullptr);
    EXPECT_EQ(config.m_dwDispenseAfterRetainBinFull, 5U);
    config.m_arCardUnit[0].SetCardName("silver");
    config.m_bDispenseErrorRetain = false;
    config.m_strSendCardUnitEvntAfterExeComplete = L"WFS_CMD_CRD_DISPENSE_CARD";
    ClearRecord();
    config.Save();
    EXPECT_EQ(Commits(), 1U);
    EXPECT_EQ(Number(Device(L"Control"), L"DispenseAfterRetainBinFull"), 1U);
    EXPECT_EQ(Number(Device(L"Control"), L"DispenseErrorRetain"), std::nullopt);
    EXPECT_EQ(Text(Device(L"Control"), L"SendCardUnitEvntAfterExeComplete"), std::nullopt);
    EXPECT_EQ(WritesOf(L"CardUnitInfo2"),
              (std::vector<std::wstring>{L"Number", L"Type", L"InitialCount", L"Count", L"RetainCount", L"Threshold",
                                         L"Status", L"HardwareSensor", L"Status", L"MaxCount", L"MinCount", L"CardName",
                                         L"Hopper"}));
    // The reference names each of them, and so much only.
    std::set<std::wstring> documented;
    for (const auto& setting : wqspcfg::DescribeOperations(CCRDRegInfo::Settings())) {
        EXPECT_EQ(setting.key, L"CardUnit\\%s");
        EXPECT_TRUE(documented.insert(setting.name).second);
    }
    const auto names = WritesOf(L"CardUnitInfo2");
    EXPECT_EQ(documented, std::set<std::wstring>(names.begin(), names.end()));
    EXPECT_EQ(Text(Unit(L"CardUnitInfo2"), L"CardName"), L"silver");
    EXPECT_EQ(Text(Unit(L"CardUnitInfo2"), L"Hopper"), L"");

    // The key it came from stays, and the unit is found twice.
    config.Load(nullptr);
    EXPECT_EQ(config.m_arCardUnit.GetSize(), 2);
}

TEST_F(CRDRegInfoTest, TheTableOfUnitsIsLogged)
{
    Config config;
    tagCardUnitEx unit;
    unit.usNumber = 2;
    unit.ulCount = 0xFFFFFFFF;
    unit.SetCardName("gold");
    config.m_arCardUnit.Add(unit);
    config.LogCardUnitInfo(&m_log, L"after the exchange", false);
    config.LogCardUnitInfo(&m_log, L"jammed", true);
    config.LogCardUnitInfo(nullptr, L"", false);
    ASSERT_EQ(m_log.Entries().size(), 2U);
    const auto& info = m_log.Entries()[0];
    EXPECT_EQ(info.severity, Severity::Info);
    EXPECT_TRUE(info.text.starts_with(L"[CST]after the exchange\r\nNumber"));
    EXPECT_NE(info.text.find(L"gold"), std::wstring::npos);
    EXPECT_NE(info.text.find(L"-1"), std::wstring::npos);
    const auto& fatal = m_log.Entries()[1];
    EXPECT_EQ(fatal.severity, Severity::Fatal);
    EXPECT_TRUE(fatal.text.starts_with(L"<CRDRegInfo(459) : CCRDRegInfo::LogCardUnitInfo> [CST]jammed\r\nNumber"));
}

TEST_F(CRDRegInfoTest, LoadWaitsForWhoHoldsTheLockOfTheUnits)
{
    Set(Unit(L"a"), L"Number", 1);
    Config config;
    config.m_arCardUnit.m_lock.Lock();
    auto loading = std::async(std::launch::async, [&] { return config.Load(nullptr); });
    EXPECT_EQ(loading.wait_for(std::chrono::milliseconds(50)), std::future_status::timeout);
    config.m_arCardUnit.m_lock.Unlock();
    EXPECT_TRUE(loading.get());
    EXPECT_EQ(config.m_arCardUnit.GetSize(), 1);
    EXPECT_TRUE(config.m_arCardUnit.m_lock.Lock(0)); // free again
    config.m_arCardUnit.m_lock.Unlock();
}

} // namespace
