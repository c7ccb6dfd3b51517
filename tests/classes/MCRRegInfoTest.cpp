#include "wqspcfg/classes/MCRRegInfo.h"

#include "support/ConfigTest.h"

#include <algorithm>

namespace {

using wqspcfg::test::ConfigTest;

class MCRRegInfoTest : public ConfigTest
{};

TEST_F(MCRRegInfoTest, TheNearlyFullCountFollowsTheCapacity)
{
    CMCRRegInfo config(L"Svc", false);
    EXPECT_EQ(config.m_dwRetainBinHigh, 15U);
    Set(Device(L"RetainCardSet"), L"MaxRetainCard", 8);
    ASSERT_TRUE(config.Load(nullptr));
    EXPECT_EQ(config.m_dwRetainBinHigh, 6U);
    Set(Device(L"RetainCardSet"), L"RetainBinHigh", 8);
    config.Load(nullptr);
    EXPECT_EQ(config.m_dwRetainBinHigh, 6U);
    Set(Device(L"RetainCardSet"), L"RetainBinHigh", 7);
    config.Load(nullptr);
    EXPECT_EQ(config.m_dwRetainBinHigh, 7U);
}

TEST_F(MCRRegInfoTest, OrderOfReadingAndWriting)
{
    Set(Device(L"IdleInterval"), L"WaitCardTaken", DWORD{0});
    CMCRRegInfo config(L"Svc", false);
    config.Load(&m_log);
    EXPECT_EQ(config.m_dwWaitCardTaken, 500U);
    const auto lines = Lines();
    ASSERT_GE(lines.size(), 5U);
    const wchar_t* const labels[] = {L"WaitCardTaken : 500[", L"MaxRetainCard : 20[", L"RetainBinHigh : 15[",
                                     L"CountOfRetained : 0[", L"CardSlotCn : 5["};
    for (std::size_t i = 0; i < 5; ++i) {
        const auto& line = lines[lines.size() - 5 + i];
        EXPECT_NE(line.find(labels[i]), std::wstring::npos);
        EXPECT_EQ(line.back() == L']', i != 0);
    }
    ClearRecord();
    config.Save();
    EXPECT_EQ(Writes(), (std::vector<std::wstring>{
                            Device(L"Policy") + L"|IsDeleteSensetiveInfo", Device(L"RetainCardSet") + L"|MaxRetainCard",
                            Device(L"RetainCardSet") + L"|RetainBinHigh",
                            Device(L"RetainCardSet") + L"|CountOfRetained", Device(L"SlotInfo") + L"|CardSlotCn"}));
}

} // namespace
