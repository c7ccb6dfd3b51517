#include "wqspcfg/classes/TTURegInfo.h"

#include "support/ConfigTest.h"

#include <tuple>

namespace {

using wqspcfg::test::ConfigTest;

class TTURegInfoTest : public ConfigTest
{
  protected:
    static std::tuple<std::wstring, int, int> BasePointFrom(const wchar_t* value)
    {
        Set(Device(L"Screen"), L"BasePoint", value);
        CTTURegInfo config(L"Svc", false);
        config.Load(nullptr);
        return {config.m_strBasePoint.Std(), config.m_nBasePointX, config.m_nBasePointY};
    }
    static std::wstring Entry(const CTTURegInfo& config, const wchar_t* name)
    {
        CString value;
        return config.m_mapKeyboardMapping.Lookup(name, value) ? value.Std() : L"<none>";
    }
};

TEST_F(TTURegInfoTest, TheBasePointStartsAtZeroOrOne)
{
    using Point = std::tuple<std::wstring, int, int>;
    EXPECT_EQ(BasePointFrom(L"1,1"), Point(L"1,1", 1, 1));
    EXPECT_EQ(BasePointFrom(L" 1, 0"), Point(L" 1, 0", 1, 0));
    EXPECT_EQ(BasePointFrom(L"2,0"), Point(L"0,0", 0, 0));
    EXPECT_EQ(BasePointFrom(L"0,5"), Point(L"0,0", 0, 0));
    EXPECT_EQ(BasePointFrom(L"-1,0"), Point(L"-1,0", -1, 0));
    EXPECT_EQ(BasePointFrom(L"1"), Point(L"1", 1, 0));
    EXPECT_EQ(BasePointFrom(L"1 ,1"), Point(L"1 ,1", 1, 0)); // the comma follows the number
    EXPECT_EQ(BasePointFrom(L"top"), Point(L"top", 0, 0));
    EXPECT_EQ(BasePointFrom(L"99999999999999999999,0"), Point(L"0,0", 0, 0));
}

TEST_F(TTURegInfoTest, TwoFlagsAreLoggedAsHeldAndTheOthersAsRead)
{
    for (const auto* name : {L"IsCKOnlyAllowed", L"ClearWhenUserCancel", L"AutoMultiZero", L"DropTailingMultiZero",
                             L"Need2HandleMultiZero", L"KeyToneOn"}) {
        Set(Device(L"KeyboardInfo"), name, 6);
    }
    CTTURegInfo config(L"Svc", false);
    ASSERT_TRUE(config.Load(&m_log));
    EXPECT_TRUE(config.m_bIsCKOnlyAllowed && config.m_bKeyToneOn);
    EXPECT_NE(Line(L"CKOnlyAllowed").find(L" : 1["), std::wstring::npos);
    EXPECT_EQ(Line(L"IsCKOnlyAllowed"), L"");
    EXPECT_NE(Line(L"ClearWhenUserCancel").find(L" : 1["), std::wstring::npos);
    for (const auto* label : {L"AutoMultiZero", L"DropTailingMultiZero", L"Need2HandleMultiZero", L"KeyToneOn"}) {
        EXPECT_NE(Line(label).find(L" : 6["), std::wstring::npos) << label;
    }
}

TEST_F(TTURegInfoTest, TheKeyboardMappingIsItsSubkeysAndItsValues)
{
    const auto mapping = Device(L"KeyboardInfo\\KeyboardMapping");
    Set(mapping + L"\\Shift", L"x", L"ignored");
    Set(mapping + L"\\F1", L"x", L"ignored");
    Set(mapping, L"F1", L"WFS_TTU_CK_HELP");
    Set(mapping, L"Number", 3);
    CTTURegInfo config(L"Svc", false);
    ASSERT_TRUE(config.Load(&m_log));
    EXPECT_EQ(config.m_mapKeyboardMapping.GetCount(), 2);
    EXPECT_EQ(Entry(config, L"Shift"), L"");
    EXPECT_EQ(Entry(config, L"F1"), L"WFS_TTU_CK_HELP");
    for (const auto& line : Lines()) {
        EXPECT_EQ(line.find(L"WFS_TTU_CK_HELP"), std::wstring::npos);
    }
    config.m_mapKeyboardMapping.SetAt(L"F2", L"WFS_TTU_CK_ENTER");
    config.Save();
    EXPECT_EQ(Text(mapping, L"F1"), L"WFS_TTU_CK_HELP");
    EXPECT_EQ(Text(mapping, L"F2"), L"WFS_TTU_CK_ENTER");
    EXPECT_EQ(Text(mapping, L"Shift"), L"");
}

TEST_F(TTURegInfoTest, SaveWritesItsValuesInOrderAndNoOther)
{
    CTTURegInfo config(L"Svc", false);
    Set(Device(L"KeyboardInfo"), L"IsCKOnlyAllowed", 6);
    config.Load(nullptr);
    config.m_dwDefaultCodec = 2;
    config.m_bMutableLedIndex = true;
    ClearRecord();
    config.Save();
    EXPECT_EQ(Commits(), 1U);
    auto writes = Writes();
    ASSERT_EQ(writes.size(), 6U);
    EXPECT_EQ(writes[1], Device(L"Form") + L"|FormsDirectory");
    EXPECT_EQ(writes[2], Device(L"Form") + L"|FormsExtension");
    EXPECT_EQ(writes[3], Device(L"KeyboardInfo") + L"|IsCKOnlyAllowed");
    EXPECT_EQ(writes[4], Device(L"KeyboardInfo") + L"|ClearWhenUserCancel");
    EXPECT_EQ(writes[5], Device(L"Screen") + L"|BasePoint");
    EXPECT_EQ(Number(Device(L"KeyboardInfo"), L"IsCKOnlyAllowed"), 1U);
}

TEST_F(TTURegInfoTest, AMissingTextKeepsWhatTheMemberHeld)
{
    CTTURegInfo config(L"Svc", false);
    config.m_strFormsDirectory = L"C:\\forms";
    config.Load(nullptr);
    EXPECT_EQ(config.m_strFormsDirectory.Std(), L"C:\\forms");
    EXPECT_EQ(config.m_strBasePoint.Std(), L"0,0");
}

} // namespace
