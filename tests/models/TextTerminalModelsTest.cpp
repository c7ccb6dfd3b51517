#include "support/ConfigTest.h"
#include "wqspcfg/models/ttu/SpTTUVirtualRegInfo.h"
#include "wqspcfg/models/ttu/SpTtuExeRegInfo.h"

#include <algorithm>

namespace {

using wqspcfg::Severity;
using wqspcfg::test::ConfigTest;

class TextTerminalTest : public ConfigTest
{
  protected:
    std::vector<std::wstring> Errors() const
    {
        std::vector<std::wstring> errors;
        for (const auto& entry : m_log.Entries()) {
            if (entry.severity == Severity::Error) {
                errors.push_back(entry.text);
            }
        }
        return errors;
    }
};

TEST_F(TextTerminalTest, RunsWithoutConfiguration)
{
    CSpTtuExeRegInfo config(L"Svc", false);
    ASSERT_TRUE(config.Load(&m_log));
    EXPECT_EQ(Errors().size(), 0U);
    EXPECT_EQ(config.Monitor().m_dwLeft, 0U);
    EXPECT_EQ(config.Monitor().m_dwWidth, 1024U);
    ASSERT_EQ(config.m_arResolution.GetSize(), 1);
    EXPECT_EQ(config.m_arResolution[0].columns, 32);
    EXPECT_EQ(config.m_arResolution[0].rows, 16);
    EXPECT_EQ(config.m_arLed[7].colours.GetSize(), 2);
    EXPECT_EQ(config.m_arLed[0].colours[1].green, 255);
    EXPECT_EQ(config.m_arLed[0].colours[1].xfsColour, 512U);
    EXPECT_NE(Line(L"LED8\\QuickFlash").find(L" : 120["), std::wstring::npos);
}

TEST_F(TextTerminalTest, ListsAreReadEntryByEntryAndBadOnesAreReported)
{
    Set(Device(L"Screen"), L"Resolutions", L"40x24;80x;0x5;80x25 ;80x25");
    Set(Device(L"LED\\LED2"), L"Colours",
        L"RGB(256, 0, 0)-1;RGB(1, 2, 3)-4294967295;RGB(1, 2, 3)-4294967296;RGB(1,2,3)-1");
    CSpTtuExeRegInfo config(L"Svc", false);
    ASSERT_TRUE(config.Load(&m_log));
    ASSERT_EQ(config.m_arResolution.GetSize(), 2);
    EXPECT_EQ(config.m_arResolution[1].columns, 80);
    ASSERT_EQ(config.m_arLed[1].colours.GetSize(), 1);
    EXPECT_EQ(config.m_arLed[1].colours[0].xfsColour, 0xFFFFFFFFU);
    const auto errors = Errors();
    ASSERT_EQ(errors.size(), 6U);
    EXPECT_NE(errors[0].find(L"Screen\\Resolutions has an entry that cannot be read : \"80x\""), std::wstring::npos);
    EXPECT_NE(errors[3].find(L"LED\\LED2\\Colours"), std::wstring::npos);

    Set(Device(L"Screen"), L"Resolutions", L"");
    config.Load(nullptr);
    EXPECT_EQ(config.m_arResolution.GetSize(), 1) << "there is always a size to start with";
}

TEST_F(TextTerminalTest, TheMonitorIsOneOfTheTerminals)
{
    Set(Common(L"Monitors\\Monitor2"), L"Left", static_cast<DWORD>(-800));
    Set(Device(L"Screen"), L"Monitor", 2);
    Set(Device(L"LED"), L"LedCount", 99);
    CSpTtuExeRegInfo config(L"Svc", false);
    ASSERT_TRUE(config.Load(&m_log));
    EXPECT_EQ(static_cast<LONG>(config.Monitor().m_dwLeft), -800);
    EXPECT_NE(Line(L"Monitor2\\Left").find(L" : -800["), std::wstring::npos);
    EXPECT_EQ(config.m_dwLedCount, 8U);
    ClearRecord();
    config.Save();
    for (const auto& write : Writes()) {
        EXPECT_EQ(write.find(L"WQCmnCfg"), std::wstring::npos) << "what all providers share is not one's own to write";
    }
    for (const DWORD number : {0U, 5U, 0xFFFFFFFFU}) {
        Set(Device(L"Screen"), L"Monitor", number);
        config.Load(nullptr);
        EXPECT_EQ(config.m_dwMonitor, 1U);
        config.m_dwMonitor = number;
        EXPECT_EQ(&config.Monitor(), &config.m_arMonitor[0]);
    }
}

TEST_F(TextTerminalTest, TheVirtualTerminalAddsItsButtons)
{
    Set(Device(L"FDK\\FDK8"), L"Enabled", 0U);
    Set(Device(L"FDK\\FDK1"), L"Text", L"OK");
    CSpTTUVirtualRegInfo config(L"Svc", false);
    ASSERT_TRUE(config.Load(nullptr));
    EXPECT_TRUE(config.m_arFdkButton[0].m_bEnabled);
    EXPECT_EQ(config.m_arFdkButton[0].m_strText.Std(), L"OK");
    EXPECT_FALSE(config.m_arFdkButton[7].m_bEnabled);
    config.m_arFdkButton[3].m_strText = L"Cancel";
    config.m_arLed[4].m_strColours = L"RGB(0, 0, 255)-2048";
    ClearRecord();
    config.Save();
    EXPECT_EQ(Commits(), 1U);
    EXPECT_EQ(Text(Device(L"FDK\\FDK4"), L"Text"), L"Cancel");
    EXPECT_EQ(Text(Device(L"LED\\LED5"), L"Colours"), L"RGB(0, 0, 255)-2048");
}

} // namespace
