// The sensors and indicators models.
#include "wqspcfg/models/siu/SpSIUCABCRegInfo.h"
#include "wqspcfg/models/siu/SpSIUJMBTRegInfo.h"
#include "wqspcfg/models/siu/SpSIUPrdSIUNormalRegInfo.h"
#include "wqspcfg/models/siu/SpSIUTEK0816RegInfo.h"

#include "support/ConfigTest.h"

#include <algorithm>

namespace {

using wqspcfg::Severity;
using wqspcfg::test::ConfigTest;

constexpr wchar_t kCashModule[] = L"SOFTWARE\\XFS\\SERVICE_PROVIDERS\\TARNO_RECYCLE\\";

class SpSIURegInfoTest : public ConfigTest
{
  protected:
    using Pairs = std::vector<std::pair<int, int>>;
    static Pairs Lights(const CSpSIUCABCRegInfo::LightMap& map)
    {
        Pairs pairs;
        for (const auto& light : map) {
            pairs.emplace_back(light.wPhyLight, light.wXFSIndex);
        }
        return pairs;
    }
};

TEST_F(SpSIURegInfoTest, CABCMapsBoardLightsWhereTheCashModuleHasNone)
{
    CSpSIUCABCRegInfo config(L"Svc", false);
    Set(kCashModule, L"Executable", L"c:\\WQC81Driver.exe");
    Set(Device(L"Control"), L"XFSIndesOfLight_5", L"4");
    Set(Device(L"Control"), L"XFSIndesOfLight_7", L"3,9");
    Set(Device(L"Control"), L"XFSIndesOfLight_17", L"1");
    config.Load(&m_log);
    const Pairs expected{{0, 2}, {5, 4}, {7, 3}, {7, 9}};
    EXPECT_EQ(Lights(config.m_arLightMap), expected);
    EXPECT_TRUE(config.m_arCashModuleLightMap.IsEmpty());
    EXPECT_NE(Line(L"TARNO_RECYCLE\\Executable").find(L" : c:\\WQC81Driver.exe["), std::wstring::npos);
    EXPECT_NE(Line(L"XFSIndesOfLight_7").find(L" : 3,9["), std::wstring::npos);
    EXPECT_TRUE(Line(L"XFSIndesOfLight_6").empty());

    config.Load(nullptr);
    EXPECT_EQ(Lights(config.m_arLightMap), expected);
    config.m_arLightMap.Add({16, 1});
    config.Save();
    EXPECT_EQ(Text(Device(L"Control"), L"XFSIndesOfLight_7"), L"3,9");
    EXPECT_EQ(Text(Device(L"Control"), L"XFSIndesOfLight_16"), L"1");
    EXPECT_EQ(Text(Device(L"Control"), L"XFSIndesOfLight_0"), std::nullopt);
    EXPECT_EQ(Text(kCashModule, L"Executable"), L"c:\\WQC81Driver.exe");
}

TEST_F(SpSIURegInfoTest, CABCTakesLightFiveForACashModuleWithALight)
{
    CSpSIUCABCRegInfo config(L"Svc", false);
    Set(kCashModule, L"Executable", L"wqspcrmwq07.exe");
    Set(Device(L"Control"), L"XFSIndesOfLight_5", L"4");
    Set(Device(L"Control"), L"XFSIndesOfLight_6", L"8");
    ClearRecord();
    config.Load(&m_log);
    EXPECT_EQ(Lights(config.m_arLightMap), (Pairs{{6, 8}}));
    EXPECT_EQ(Lights(config.m_arCashModuleLightMap), (Pairs{{5, 2}}));
    EXPECT_NE(Line(L"XFSIndesOfLight_5").find(L" : 2["), std::wstring::npos);
    const auto reads = Reads();
    EXPECT_EQ(std::count(reads.begin(), reads.end(), Device(L"Control") + L"|XFSIndesOfLight_5"), 0);
    config.Save();
    EXPECT_EQ(Text(Device(L"Control"), L"XFSIndesOfLight_5"), L"4"); // untouched

    for (const auto* executable : {L"WQSPCRMWQ07_WQCCAD.exe", L"other.exe"}) {
        Set(kCashModule, L"Executable", executable);
        config.Load(nullptr);
        EXPECT_FALSE(config.m_bCashModuleLight) << executable;
    }
}

TEST_F(SpSIURegInfoTest, CABCLeavesTheTextsOfLightsThatNobodyMapsAnew)
{
    const auto control = Device(L"Control");
    const auto light = [](int number) { return L"XFSIndesOfLight_" + std::to_wstring(number); };
    Set(control, light(6), L"3;9");
    Set(control, light(7), L"70000");
    Set(control, light(8), 5U);
    Set(control, light(9), L"1,2");
    {
        CSpSIUCABCRegInfo config(L"Svc", false);
        config.Save(); // without a Load
    }
    CSpSIUCABCRegInfo config(L"Svc", false);
    config.Load(nullptr);
    config.Save();
    EXPECT_EQ(Text(control, light(6)), L"3;9");
    EXPECT_EQ(Text(control, light(7)), L"70000");
    EXPECT_EQ(Number(control, light(8)), 5U);
    EXPECT_EQ(Text(control, light(9)), L"1,2");
    EXPECT_EQ(Text(control, light(10)), std::nullopt);

    config.m_arLightMap.RemoveAll();
    config.m_arLightMap.Add({6, 4});
    config.m_arLightMap.Add({6, 5});
    config.Save();
    EXPECT_EQ(Text(control, light(6)), L"4,5");
    EXPECT_EQ(Text(control, light(9)), L""); // no longer used
    config.m_arLightMap.RemoveAll();
    config.Save();
    EXPECT_EQ(Text(control, light(6)), L"");
}

TEST_F(SpSIURegInfoTest, CABCKnowsTheTerminalTypesWithATamperSensor)
{
    CSpSIUCABCRegInfo config(L"Svc", false);
    config.Load(nullptr);
    EXPECT_FALSE(config.m_bTamperTermType);
    Set(Common(L"Setup"), L"TermType", L"WQT-7200 through-the-wall");
    config.Load(nullptr);
    EXPECT_TRUE(config.m_bTamperTermType);
}

TEST_F(SpSIURegInfoTest, JMBTReportsEveryMissingValueAndLoadsAllTheSame)
{
    CSpSIUJMBTRegInfo config(L"Svc", false);
    config.m_dwSwitch_Pol[1] = 7;
    Set(Device(L"Switches\\Index"), L"Switch2", 3);
    Set(Device(L"Switches\\Index"), L"Switch3", 4);
    Set(Device(L"Switches\\Polarity"), L"Switch3_Pol", 1);
    EXPECT_TRUE(config.Load(&m_log)); // the keyboard agent's values are missing too
    EXPECT_EQ(config.m_dwSwitch[0], 0U);
    EXPECT_EQ(config.m_dwSwitch[1], 0U);
    EXPECT_EQ(config.m_dwSwitch_Pol[1], 7U);
    EXPECT_EQ(config.m_dwSwitch[2], 4U);
    EXPECT_EQ(config.m_dwSwitch_Pol[2], 1U);
    EXPECT_EQ(config.m_dwLight[7], 0xFFFFFFFFU);
    EXPECT_NE(Line(L"Light8").find(L" : -1["), std::wstring::npos);
    EXPECT_NE(Line(L"Switch3_Pol").find(L" : 1" + std::wstring(19, L' ') + L"["), std::wstring::npos);

    std::vector<std::wstring> errors;
    for (const auto& entry : m_log.Entries()) {
        if (entry.severity == Severity::Error) {
            errors.push_back(entry.text);
        }
    }
    // 8 single values, 8 lights with 2 polarities, 4 switches with polarity and type; 3 of them are there.
    ASSERT_EQ(errors.size(), 8U + 24U + 12U - 3U);
    EXPECT_EQ(errors[0].find(L"<SpSIUJMBTRegInfo("), 0U);
    EXPECT_TRUE(errors[0].ends_with(L" : CSpSIUJMBTRegInfo::Load> ReadRegedit Info Fail : Port")) << errors[0].size();
    EXPECT_TRUE(errors[7].ends_with(L"Fail : Light2"));
}

TEST_F(SpSIURegInfoTest, JMBTDoesNotSaveThePortThatAMissingPolarityMade)
{
    const auto index = Device(L"Switches\\Index");
    const auto polarity = Device(L"Switches\\Polarity");
    Set(index, L"Switch1", 3);
    Set(index, L"Switch2", 4);
    Set(polarity, L"Switch2_Pol", 1);
    CSpSIUJMBTRegInfo config(L"Svc", false);
    config.Load(nullptr);
    config.m_dwSwitch[1] = 5;
    config.Save();
    EXPECT_EQ(Number(index, L"Switch1"), 3U);
    EXPECT_EQ(Number(polarity, L"Switch1_Pol"), std::nullopt);
    EXPECT_EQ(Number(index, L"Switch2"), 5U);

    config.m_dwSwitch_Pol[0] = 1; // both together, or the next Load would lose the port again
    config.m_dwSwitch[0] = 3;
    config.Save();
    config.m_dwSwitch[0] = 0;
    config.m_dwSwitch_Pol[0] = 0;
    config.Save();
    EXPECT_EQ(Number(index, L"Switch1"), 0U);
    EXPECT_EQ(Number(polarity, L"Switch1_Pol"), 0U);
}

TEST_F(SpSIURegInfoTest, PrdSIUNormalNamesTheSubkeyInItsLines)
{
    CSpSIUPrdSIUNormalRegInfo config(L"Svc", false);
    Set(Device(L"ShareCtrl"), L"UseProximity", 6);
    config.Load(&m_log);
    EXPECT_EQ(config.m_dwUseProximitySta, 6U);
    EXPECT_NE(Line(L"Sensors\\UseSafeDoor").find(L" : 0["), std::wstring::npos);
    EXPECT_NE(Line(L"ShareCtrl\\UseProximity").find(L" : 6["), std::wstring::npos);
    EXPECT_NE(Line(L"DN.SIU_NORMAL").find(L" : WQDrSIUTEK0816["), std::wstring::npos);
}

TEST_F(SpSIURegInfoTest, TEK0816ResolvesPortsByTheirType)
{
    using Kind = wqspcfg::XFSPort::Kind;
    struct Case
    {
        const wchar_t* type;
        DWORD index;
        Kind kind;
        int resolved;
    };
    static constexpr Case kCases[] = {{L"LIGHT", 4, Kind::GuidLight, 4},
                                      {L"GuidLight", 32, Kind::None, 0},
                                      {L"door", 2, Kind::Door, 2},
                                      {L"Door_1", 9, Kind::Door, 1},
                                      {L"Door_x", 1, Kind::None, 0},
                                      {L"Door_", 1, Kind::None, 0},
                                      {L" billacceptor ", 0, Kind::GuidLight, 8},
                                      {L"INDICATOR_4", 0, Kind::Indicator, 4},
                                      {L"Indicator_6", 0, Kind::Indicator, 6},
                                      {L"OPERATORSWITCH", 7, Kind::Sensor, 0},
                                      {L"Auxiliary_99999999999999999999", 0, Kind::None, 0},
                                      {L"", 1, Kind::None, 0},
                                      {L"CARDUNIT", 0xFFFFFFFF, Kind::None, 0}};
    CSpSIUTEK0816RegInfo config(L"Svc", false);
    config.Load(nullptr);
    EXPECT_EQ(config.m_arLight[0].port.kind, Kind::None);
    for (const auto& test : kCases) {
        Set(Device(L"Switches"), L"Switch8", test.index);
        Set(Device(L"Switches"), L"Switch8_ToType", test.type);
        config.Load(nullptr);
        EXPECT_EQ(config.m_arSwitch[7].port.kind, test.kind) << testing::PrintToString(std::wstring(test.type));
        EXPECT_EQ(config.m_arSwitch[7].port.wIndex, test.resolved) << testing::PrintToString(std::wstring(test.type));
    }
}

} // namespace
