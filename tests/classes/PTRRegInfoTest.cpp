#include "wqspcfg/classes/PTRRegInfo.h"

#include "support/ConfigTest.h"

#include <algorithm>

namespace {

using wqspcfg::test::ConfigTest;

class PTRRegInfoTest : public ConfigTest
{};

TEST_F(PTRRegInfoTest, AnEmptyDeviceKeyGivesTheDefaults)
{
    CPTRRegInfo config(L"Svc", false);
    ASSERT_TRUE(config.Load(&m_log));
    EXPECT_EQ(config.m_strOtherFileDirectory, L"C:\\form");
    EXPECT_EQ(config.m_strFormsDirectory, L"C:\\vexo\\wq\\conf");
    EXPECT_EQ(config.m_strMediasExtension, L"wfm");
    EXPECT_EQ(config.m_dwCutWhenResetWithEject, 1U);
    EXPECT_EQ(config.m_dwWaitTaken, 500U);
    EXPECT_EQ(config.m_chReadFormFieldDivCharLeft, L'\0');
    EXPECT_TRUE(
        std::all_of(std::begin(config.m_dwReserved), std::end(config.m_dwReserved), [](DWORD dw) { return dw == 0; }));
    static_assert(sizeof config.m_dwReserved == 508);
}

TEST_F(PTRRegInfoTest, AnEmptyFormSettingStaysEmptyUntilSaveReplacesIt)
{
    Set(Device(L"Form"), L"FormsDirectory", L"");
    Set(Device(L"Form"), L"MediasExtension", L"");
    CPTRRegInfo config(L"Svc", false);
    ASSERT_TRUE(config.Load(nullptr));
    EXPECT_TRUE(config.m_strFormsDirectory.IsEmpty());
    config.m_strOtherFileDirectory.Empty();
    config.Save();
    EXPECT_EQ(Text(Device(L"Form"), L"FormsDirectory"), L"c:\\vexo\\wq\\conf");
    EXPECT_EQ(Text(Device(L"Form"), L"OtherFileDirectory"), L"c:\\form");
    EXPECT_EQ(Text(Device(L"Form"), L"MediasDirectory"), L"C:\\vexo\\wq\\conf"); // was not empty
    EXPECT_EQ(Text(Device(L"Form"), L"MediasExtension"), L"wfm");
    EXPECT_EQ(config.m_strFormsDirectory, L"c:\\vexo\\wq\\conf");
    EXPECT_EQ(config.m_strOtherFileDirectory, L"c:\\form");
}

TEST_F(PTRRegInfoTest, ASeparatorIsTheFirstCharacterOfItsText)
{
    Set(Device(), L"ReadFormFieldDivCharLeft", L"[]");
    Set(Device(), L"ReadFormFieldDivCharRight", L"");
    CPTRRegInfo config(L"Svc", false);
    config.m_chReadFormFieldDivCharRight = L'x';
    ASSERT_TRUE(config.Load(&m_log));
    EXPECT_EQ(config.m_chReadFormFieldDivCharLeft, L'[');
    EXPECT_EQ(config.m_chReadFormFieldDivCharRight, L'\0');
    EXPECT_NE(Line(L"ReadFormFieldDivCharLeft").find(L"ReadFormFieldDivCharLeft : [["), std::wstring::npos);
    // None prints as nothing: a NUL would cut the line short and make the log file binary.
    EXPECT_NE(Line(L"ReadFormFieldDivCharRight").find(L"ReadFormFieldDivCharRight : [sep"), std::wstring::npos);
}

TEST_F(PTRRegInfoTest, SwitchesAreHeldAsTruthAndLoggedAsRead)
{
    Set(Device(), L"ForceWaitMediaInsert", 5);
    Set(Device(), L"RtFieldNameWhenTrackEmpty", 2);
    Set(Device(), L"CheckInputParam", 7);
    CPTRRegInfo config(L"Svc", false);
    ASSERT_TRUE(config.Load(&m_log));
    EXPECT_TRUE(config.m_bForceWaitMediaInsert);
    EXPECT_TRUE(config.m_bRtFieldNameWhenTrackEmpty);
    EXPECT_NE(Line(L"ForceWaitMediaInsert").find(L" : 5["), std::wstring::npos);
    config.Save();
    EXPECT_EQ(Number(Device(), L"ForceWaitMediaInsert"), 1U);
    EXPECT_EQ(Number(Device(), L"RtFieldNameWhenTrackEmpty"), 1U);
    EXPECT_EQ(Number(Device(), L"CheckInputParam"), 7U);
}

TEST_F(PTRRegInfoTest, OnlyOneSwitchOutlivesTheLossOfItsValue)
{
    CPTRRegInfo config(L"Svc", false);
    config.m_bRtFieldNameWhenTrackEmpty = true;
    config.m_bForceErrorWhenRetractBoxFull = true;
    config.m_dwTriggerMTWhenNoMedia = 1;
    ASSERT_TRUE(config.Load(nullptr));
    EXPECT_TRUE(config.m_bRtFieldNameWhenTrackEmpty);
    EXPECT_FALSE(config.m_bForceErrorWhenRetractBoxFull);
    EXPECT_EQ(config.m_dwTriggerMTWhenNoMedia, 0U);
}

TEST_F(PTRRegInfoTest, SaveLeavesWhatOthersOwn)
{
    CPTRRegInfo config(L"Svc", false);
    ASSERT_TRUE(config.Load(nullptr));
    ClearRecord();
    config.Save();
    EXPECT_EQ(Commits(), 1U);
    EXPECT_EQ(Writes(),
              OfDevice({{L"Policy", L"IsDeleteSensetiveInfo"},
                        {L"", L"CheckDataBoundary CheckFormMediaOverflow NoAddBlankNode"},
                        {L"Form", L"OtherFileDirectory FormsDirectory FormsExtension MediasDirectory MediasExtension"},
                        {L"", L"ForceWaitMediaInsert ForceErrorWhenRetractBoxFull CheckInputParam AllDataMoveDown "
                              L"IsCkFormInvaidWhenPrint IsSupportFormInvaidList IsSupportMediaInvaidList "
                              L"IsUseEscapeCharacter IsUseEscapeCharacterWhenPrint SpaceCntWithTabKey "
                              L"IsSupportFormMediaReLoad SendErrorWhenFieldNotExist ApID RtFieldNameWhenTrackEmpty "
                              L"UsedInitialValueForIndex SentMediatakenAfterSentMediapresented AllowRetractWhenFull "
                              L"SendMediaTakenOfReadImage PrintNodeMgrType RawDataWaitMediaInsert"}}));
}

} // namespace
