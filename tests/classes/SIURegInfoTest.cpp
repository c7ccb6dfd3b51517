#include "wqspcfg/classes/SIURegInfo.h"

#include "support/ConfigTest.h"
#include "wqspcfg/core/settings/Reference.h"

#include <algorithm>
#include <numeric>

namespace {

using wqspcfg::test::ConfigTest;

constexpr wchar_t kAgent[] = L"SOFTWARE\\TARNO\\Driver\\WQDrOKIUsbAgent";
constexpr wchar_t kMapping[] = L"SOFTWARE\\TARNO\\Driver\\WQDrOKIUsbAgent\\KeyboardMapping\\";
constexpr wchar_t kAvailable[] = L"WFS_SIU_AVAILABLE";
constexpr wchar_t kNotAvailable[] = L"WFS_SIU_NOT_AVAILABLE";

class SIURegInfoTest : public ConfigTest
{
  protected:
    static std::wstring Port(const std::wstring& port) { return Device(L"CAPABILITIES\\" + port); }
    static void Gate(const wchar_t* name) { Set(Device(L"CAPABILITIES"), name, 1); }
    bool HasLine(const std::wstring& text) const
    {
        const auto lines = Lines();
        return std::find(lines.begin(), lines.end(), text) != lines.end();
    }
    std::size_t CountLines(const std::wstring& part) const
    {
        const auto lines = Lines();
        return static_cast<std::size_t>(std::count_if(lines.begin(), lines.end(), [&](const std::wstring& line) {
            return line.find(part) != std::wstring::npos;
        }));
    }
    static std::wstring PortLine(const std::wstring& value, int number, const std::wstring& port)
    {
        return L"[CFG] " + std::wstring(40 - value.size(), L' ') + value + L" : " + std::to_wstring(number) + L"[" +
               port + L"]";
    }

    CSIURegInfo m_config{L"Svc", false};
};

TEST_F(SIURegInfoTest, WithoutTheAgentsValuesTheRestIsLoadedAllTheSame)
{
    EXPECT_EQ(m_config.m_mapKeyboardMapping.GetCount(), 24);
    EXPECT_EQ(m_config.m_dwEBphoneHangon, 0U);
    Set(Device(L"Control"), L"ThinkOfDevStatusWhenEnableEvents", 1);
    EXPECT_FALSE(m_config.Load(&m_log));
    EXPECT_EQ(m_config.m_dwThinkOfDevStatusWhenEnableEvents, 1U);
    EXPECT_EQ(m_config.m_dwEBphoneHangon, 0x8001U);
    EXPECT_EQ(m_config.m_dwEBPhoneHangup, 0x8002U);
    EXPECT_EQ(m_config.m_dwEBPhoneError, 0x8002U);
    EXPECT_EQ(m_config.m_dwSetStatusNotAvailableWhenSetFail, 1U);
    EXPECT_EQ(CountLines(L"[fw") + CountLines(L"***"), 0U);
    const auto* words = m_config.m_stSiuCaps.fwSensors;
    EXPECT_EQ(std::accumulate(words, words + 112, 0), 0);
}

TEST_F(SIURegInfoTest, LoadSucceedsOnlyWithBothOfTheAgentsValues)
{
    Set(kAgent, L"CanpostKeyEvent", 1);
    EXPECT_FALSE(m_config.Load(nullptr)); // no mapping
    Set(kMapping, L"3", L"ENTER");
    Set(kMapping, L"25", L"F9");
    EXPECT_TRUE(m_config.Load(nullptr));
    EXPECT_EQ(m_config.m_dwCanpostKeyEvent, 1U);
    EXPECT_EQ(m_config.m_mapKeyboardMapping.GetCount(), 25);
    EXPECT_EQ(m_config.m_mapKeyboardMapping[L"3"], L"ENTER");
    EXPECT_EQ(m_config.m_mapKeyboardMapping[L"4"], L"");
}

TEST_F(SIURegInfoTest, SensorsAreReadOneByOneAndTheirLinesShowTheValueReadLast)
{
    Gate(L"WFS_SIU_SENSORS");
    Set(Port(L"fwSensors\\OPERATORSWITCH"), L"WFS_SIU_MAINTENANCE", 1);
    Set(Port(L"fwSensors\\TAMPER"), kAvailable, 5);
    Set(Port(L"fwSensors\\TAMPER"), kNotAvailable, 1);
    Set(Port(L"fwSensors\\HEAT"), kAvailable, 7);
    Set(Port(L"fwSensors\\HEAT"), kNotAvailable, 0U);
    Set(Port(L"fwSensors\\CALL_BUTTON"), kAvailable, 1);
    m_config.Load(&m_log);
    EXPECT_EQ(m_config.m_stSiuCaps.fwSensors[WFS_SIU_OPERATORSWITCH], 0x0002);
    EXPECT_EQ(m_config.m_stSiuCaps.fwSensors[WFS_SIU_TAMPER], 0);
    EXPECT_EQ(m_config.m_stSiuCaps.fwSensors[WFS_SIU_HEAT], 1);
    EXPECT_EQ(m_config.m_stSiuCaps.fwSensors[10], 1);
    EXPECT_TRUE(HasLine(L"[CFG] " + std::wstring(31, L'*') + L"fwSensors" + std::wstring(33, L'*')));
    EXPECT_EQ(CountLines(std::wstring(31, L'*')), 2U); // the legend and the caption
    EXPECT_TRUE(HasLine(L"[CFG] " + std::wstring(25, L' ') + L"WFS_SIU_SENSORS : 1"));
    EXPECT_TRUE(HasLine(PortLine(L"WFS_SIU_MAINTENANCE", 1, L"fwSensors[OPERATORSWITCH]")));
    EXPECT_EQ(CountLines(L"fwSensors[TAMPER]"), 0U);
    EXPECT_TRUE(HasLine(PortLine(kAvailable, 1, L"fwSensors[INTTAMPER]"))); // what TAMPER left
    EXPECT_TRUE(HasLine(PortLine(kAvailable, 0, L"fwSensors[HEAT]")));

    // The switch without the run bit is saved as not available, and is gone after the next load.
    m_config.Save();
    EXPECT_EQ(Number(Port(L"fwSensors\\OPERATORSWITCH"), kNotAvailable), 1U);
    EXPECT_EQ(Number(Port(L"fwSensors\\OPERATORSWITCH"), L"WFS_SIU_MAINTENANCE"), 1U);
    EXPECT_EQ(Number(Port(L"fwSensors\\CALL_BUTTON"), kNotAvailable), std::nullopt);
    EXPECT_EQ(Number(Port(L"fwSensors\\HANDSETSENSOR"), kAvailable), 0U);
    CSIURegInfo again(L"Svc", false);
    again.Load(nullptr);
    EXPECT_EQ(again.m_stSiuCaps.fwSensors[WFS_SIU_OPERATORSWITCH], 0);
}

TEST_F(SIURegInfoTest, TheStatesOfADoorAreReadOnlyWhereTheValueReadLastIsZero)
{
    Gate(L"WFS_SIU_DOORS");
    Set(Port(L"fwDoors\\CABINET"), L"WFS_SIU_CLOSED", 1); // not read: the gate stands in the holder
    Set(Port(L"fwDoors\\SAFE"), kNotAvailable, 0U);
    Set(Port(L"fwDoors\\SAFE"), L"WFS_SIU_BOLTED", 1);
    Set(Port(L"fwDoors\\SAFE"), L"WFS_SIU_OPEN", 2);
    Set(Port(L"fwDoors\\SAFE"), L"WFS_SIU_SERVICE", 0U);
    Set(Port(L"fwDoors\\VANDALSHIELD"), L"WFS_SIU_KEYBOARD", 1); // read: the safe's service value was the last
    m_config.Load(&m_log);
    EXPECT_EQ(m_config.m_stSiuCaps.fwDoors[WFS_SIU_CABINET], 0);
    EXPECT_EQ(m_config.m_stSiuCaps.fwDoors[WFS_SIU_SAFE], 0x000A);
    EXPECT_EQ(m_config.m_stSiuCaps.fwDoors[WFS_SIU_VANDALSHIELD], 0x0020);
    EXPECT_TRUE(HasLine(PortLine(L"WFS_SIU_OPEN", 2, L"fwDoors[SAFE]")));
    EXPECT_TRUE(HasLine(PortLine(L"WFS_SIU_SERVICE", 0, L"fwDoors[SAFE]")));

    m_config.Save();
    EXPECT_EQ(Number(Port(L"fwDoors\\CABINET"), kNotAvailable), 1U);
    EXPECT_EQ(Number(Port(L"fwDoors\\SAFE"), L"WFS_SIU_OPEN"), 1U); // a bit is written as 1
    EXPECT_EQ(Number(Port(L"fwDoors\\VANDALSHIELD"), L"WFS_SIU_KEYBOARD"), 1U);
    EXPECT_EQ(Number(Port(L"fwDoors\\VANDALSHIELD"), L"WFS_SIU_BOLTED"), std::nullopt);
    EXPECT_EQ(Number(Port(L"fwDoors\\CABINET"), L"WFS_SIU_SERVICE"), std::nullopt);
}

TEST_F(SIURegInfoTest, TheScreensAreThereUnlessToldOtherwise)
{
    Gate(L"WFS_SIU_INDICATORS");
    Set(Port(L"fwIndicators\\FRONTSCREEN"), kAvailable, 0U);
    Set(Port(L"fwIndicators\\INDICATOR_15"), kAvailable, 1);
    Set(Port(L"fwIndicators\\AUDIO"), kAvailable, 9);
    m_config.Load(&m_log);
    EXPECT_EQ(m_config.m_stSiuCaps.fwIndicators[6], 1);
    EXPECT_EQ(m_config.m_stSiuCaps.fwIndicators[14], 0);
    EXPECT_EQ(m_config.m_stSiuCaps.fwIndicators[15], 1);
    EXPECT_TRUE(HasLine(PortLine(kAvailable, 1, L"fwIndicators[AUDIO]")));
    EXPECT_TRUE(HasLine(PortLine(kAvailable, 1, L"fwIndicators[REARSCREEN]")));
    EXPECT_EQ(CountLines(L"INDICATOR_15"), 0U);
    m_config.Save();
    EXPECT_EQ(Number(Port(L"fwIndicators\\AUDIO"), kAvailable), 1U);
    EXPECT_EQ(Number(Port(L"fwIndicators\\REARSCREEN"), kAvailable), std::nullopt);
}

TEST_F(SIURegInfoTest, TheVolumeIsItsStepsAndIsSavedAsTheirLowestBit)
{
    Gate(L"WFS_SIU_AUXILIARIES");
    Set(Port(L"fwAuxiliaries\\VOLUME"), kAvailable, 10);
    Set(Port(L"fwAuxiliaries\\UPS"), kAvailable, 10);
    Set(Port(L"fwAuxiliaries\\UPS"), L"WFS_SIU_POWERING", 1);
    Set(Port(L"fwAuxiliaries\\ALARM"), kAvailable, 1);
    Set(Port(L"fwAuxiliaries\\ALARM"), kNotAvailable, 1);
    m_config.Load(&m_log);
    EXPECT_EQ(m_config.m_stSiuCaps.fwAuxiliaries[WFS_SIU_VOLUME], 10);
    EXPECT_EQ(m_config.m_stSiuCaps.fwAuxiliaries[WFS_SIU_UPS], 0x0009);
    EXPECT_EQ(m_config.m_stSiuCaps.fwAuxiliaries[WFS_SIU_AUDIBLE_ALARM], 0);
    EXPECT_TRUE(HasLine(PortLine(kAvailable, 10, L"fwAuxiliaries[UPS]")));
    m_config.Save();
    EXPECT_EQ(Number(Port(L"fwAuxiliaries\\VOLUME"), kAvailable), 0U);
    EXPECT_EQ(Number(Port(L"fwAuxiliaries\\UPS"), kNotAvailable), 0U);
    EXPECT_EQ(Number(Port(L"fwAuxiliaries\\UPS"), L"WFS_SIU_POWERING"), 1U);
}

TEST_F(SIURegInfoTest, EveryGuidanceLightHasALineAndTheFirstThirteenAreSaved)
{
    Gate(L"WFS_SIU_GUIDLIGHTS");
    Set(Port(L"fwGuidLights\\WFS_GUIDLIGHT_15"), kAvailable, 1);
    m_config.Load(&m_log);
    EXPECT_EQ(m_config.m_stSiuCaps.fwGuidLights[15], 1);
    EXPECT_EQ(CountLines(L"fwGuidLights["), 16U);
    m_config.Save();
    EXPECT_EQ(Number(Device(L"CAPABILITIES"), L"WFS_SIU_GUIDLIGHTS"), 0U); // light 15 does not count
    EXPECT_EQ(Number(Port(L"fwGuidLights\\SCANNER"), kAvailable), 0U);
}

TEST_F(SIURegInfoTest, AutoEnableTakesWellFormedNamesAndNeverClearsAFlag)
{
    const auto key = Device(L"AutoEnable");
    for (const auto* name : {L"Sensor_0", L"Door_05", L"Auxiliarie_15", L"GuidLight_3x"}) {
        Set(key, name, L"1");
    }
    for (const auto* name : {L"Sensor_x", L"Sensor_32", L"sensor_1", L"Sensor_-1", L"Sensor_", L"_1", L"Sensor2",
                             L"Door_16", L"Sensor_4294967297", L"Sensor_1_"}) {
        Set(key, name, L"1");
    }
    Set(key, L"Indicator_2", L"0");
    m_config.Load(&m_log);
    const auto sum = [](const auto& flags) { return std::accumulate(std::begin(flags), std::end(flags), 0); };
    EXPECT_EQ(m_config.m_bySensorAutoEnable[0], 1);
    EXPECT_EQ(sum(m_config.m_bySensorAutoEnable), 1);
    EXPECT_EQ(m_config.m_byDoorAutoEnable[5], 1);
    EXPECT_EQ(sum(m_config.m_byDoorAutoEnable), 1);
    EXPECT_EQ(sum(m_config.m_byIndicatorAutoEnable), 0);
    EXPECT_EQ(m_config.m_byAuxiliaryAutoEnable[15], 1);
    EXPECT_EQ(m_config.m_byGuidLightAutoEnable[3], 1);
    EXPECT_FALSE(Line(L"Sensor_x").empty());
    EXPECT_TRUE(Line(L"Indicator_2").empty());

    Set(key, L"Sensor_0", L"0");
    Set(key, L"Sensor_7", L"1");
    m_config.Load(nullptr);
    EXPECT_EQ(m_config.m_bySensorAutoEnable[0], 1);
    EXPECT_EQ(m_config.m_bySensorAutoEnable[7], 1);
    m_config.m_byDoorAutoEnable[5] = 0;
    m_config.Save();
    EXPECT_EQ(Text(key, L"Sensor_0"), L"1");
    EXPECT_EQ(Text(key, L"Door_5"), std::nullopt); // nothing is written for a cleared flag
    EXPECT_EQ(Text(key, L"Door_05"), L"1");        // and nothing removed
}

TEST_F(SIURegInfoTest, TheReferenceHasThePortsInTheOrderOfReading)
{
    for (const auto* gate : {L"SENSORS", L"INDICATORS", L"AUXILIARIES", L"GUIDLIGHTS"}) {
        Gate((std::wstring(L"WFS_SIU_") + gate).c_str());
    }
    std::vector<std::wstring> documented;
    for (const auto& setting : wqspcfg::Describe(CSIURegInfo::Settings())) {
        if (setting.name == kAvailable) {
            Set(Device(setting.key), kAvailable, 1);
            documented.push_back(Device(setting.key) + L"|" + kAvailable);
        }
    }
    ClearRecord();
    m_config.Load(nullptr);
    std::vector<std::wstring> read;
    for (const auto& each : Reads()) {
        if (each.ends_with(kAvailable) && !each.ends_with(kNotAvailable)) {
            read.push_back(each);
        }
    }
    EXPECT_EQ(read, documented);
}

TEST_F(SIURegInfoTest, WindowNamesAreSplitWithoutBlanksAndTheLineShowsThemAsTheyAre)
{
    Set(Device(L"control"), L"HandsetSendEveWindowNames", L" A, B,,C");
    m_config.Load(&m_log);
    ASSERT_EQ(m_config.m_arHandsetSendEveWindowNames.GetSize(), 3);
    EXPECT_EQ(m_config.m_arHandsetSendEveWindowNames[0], L"A");
    EXPECT_EQ(m_config.m_arHandsetSendEveWindowNames[2], L"C");
    EXPECT_NE(Line(L"HandsetSendEveWindowNames").find(L" : [ A, B,,C]["), std::wstring::npos);
}

TEST_F(SIURegInfoTest, SaveIsOneCommitInItsOwnOrder)
{
    Set(Device(L"AutoEnable"), L"GuidLight_2", L"1");
    m_config.Load(nullptr);
    m_config.m_dwCanpostKeyEvent = 1;
    ClearRecord();
    m_config.Save();
    EXPECT_EQ(Commits(), 1U);
    const auto writes = Writes();
    ASSERT_EQ(writes.size(), 88U);
    EXPECT_EQ(writes[1], Device(L"CAPABILITIES") + L"|WFS_SIU_SENSORS");
    EXPECT_EQ(writes[2], Port(L"fwSensors\\OPERATORSWITCH") + L"|" + kNotAvailable);
    EXPECT_EQ(writes[4], Port(L"fwSensors\\OPERATORSWITCH") + L"|WFS_SIU_SUPERVISOR");
    EXPECT_EQ(writes[14], Device(L"CAPABILITIES\\") + L"|WFS_SIU_DOORS");
    EXPECT_EQ(writes[31], Device(L"CAPABILITIES\\") + L"|WFS_SIU_INDICATORS");
    EXPECT_EQ(writes[36], Device(L"CAPABILITIES\\") + L"|WFS_SIU_AUXILIARIES");
    EXPECT_EQ(writes[46], Device(L"CAPABILITIES\\") + L"|WFS_SIU_GUIDLIGHTS");
    EXPECT_EQ(writes[60], kMapping + std::wstring(L"|1"));
    EXPECT_EQ(writes[84], kAgent + std::wstring(L"|CanpostKeyEvent"));
    EXPECT_EQ(writes[85], Device(L"Control") + L"|ThinkOfDevStatusWhenEnableEvents");
    EXPECT_EQ(writes[86], Device(L"AutoEnable") + L"|GuidLight_2");
    EXPECT_EQ(writes[87], Device(L"control") + L"|SetStatusNotAvailableWhenSetFail");
}

} // namespace
