#include "wqspcfg/classes/CRMRegInfo.h"

#include "support/ConfigTest.h"
#include "wqspcfg/platform/store/KeyHandle.h"
#include "wqspcfg/platform/store/Session.h"
#include "wqspcfg/platform/xfs/XfsResult.h"

#include <algorithm>
#include <string>
#include <vector>

namespace {

using wqspcfg::WriteScope;
using wqspcfg::test::ConfigTest;

class CRMRegInfoTest : public ConfigTest
{
  protected:
    CRMRegInfoTest() { Set(Device(L"SNRData"), L"dwAPID", 100); }

    static void SetNoteType(DWORD number, DWORD id, const wchar_t* currency, DWORD value, DWORD config)
    {
        const auto key = Device(L"NoteType\\NoteType" + std::to_wstring(number));
        Set(key, L"NoteID", id);
        Set(key, L"CurrencyID", currency);
        Set(key, L"Value", value);
        Set(key, L"Release", 1);
        Set(key, L"Config", config);
    }
    static void SetCount(DWORD count) { Set(Device(L"NoteType"), L"Count", count); }

    static std::size_t IndexOf(const std::vector<std::wstring>& entries, const std::wstring& entry)
    {
        return static_cast<std::size_t>(std::find(entries.begin(), entries.end(), entry) - entries.begin());
    }
    // Whether the entries appear in that order, others between them or not.
    static void ExpectInOrder(const std::vector<std::wstring>& entries, const std::vector<std::wstring>& expected)
    {
        auto from = entries.begin();
        for (const auto& entry : expected) {
            from = std::find(from, entries.end(), entry);
            ASSERT_NE(from, entries.end()) << std::string(entry.begin(), entry.end());
            ++from;
        }
    }
    std::vector<std::wstring> Labels() const
    {
        std::vector<std::wstring> labels;
        for (const auto& line : Lines()) {
            const auto head = line.find_first_not_of(L' ', 5);
            labels.push_back(line.substr(head, line.find(L" :") - head));
        }
        return labels;
    }
    std::size_t LinesLike(const std::wstring& part) const
    {
        const auto lines = Lines();
        return static_cast<std::size_t>(std::count_if(lines.begin(), lines.end(), [&](const std::wstring& line) {
            return line.find(part) != std::wstring::npos;
        }));
    }
};

TEST_F(CRMRegInfoTest, LoadReadsTheGroupsInTheirOrder)
{
    // Values are asked for only in keys that exist.
    for (const auto* subkey : {L"CAPABILITIES", L"Cassette", L"Cassette\\Limit", L"REPLENISH"}) {
        Set(Device(subkey), L"Unrelated", 1);
    }
    ClearRecord();
    CCRMRegInfo config(L"Svc", false);
    ASSERT_TRUE(config.Load(&m_log));
    const auto capability = [](const wchar_t* name) { return Device(L"CAPABILITIES") + L"|" + name; };
    ExpectInOrder(Reads(), {capability(L"ForceResetToRTCASInCIM"),
                            capability(L"CanRejectWhatever"),
                            Device() + L"|SupportCurrencyID",
                            Device() + L"|SupportCurrencyExponent",
                            capability(L"RejectCountCalcMode"),
                            capability(L"UseHWCountMode"),
                            Device() + L"|SupportMixNumber",
                            capability(L"TryDenominateMultiValue"),
                            capability(L"DisCasExtremeCnt"),
                            Device(L"Cassette\\Limit") + L"|StopCIMIfAllNonMixBoxFullAndHavecyclebox",
                            Device(L"Cassette\\Limit") + L"|StopCIMIfNoInExceptNonValue",
                            capability(L"CloseShtBeforeDispense"),
                            capability(L"RejectTimesWhenSubDispenseFail"),
                            Device(L"Cassette\\Limit") + L"|EmptyLimit",
                            Device(L"Cassette\\Limit") + L"|MaxLimitOfReject",
                            Device(L"Cassette") + L"|PhyLog11",
                            Device(L"Cassette") + L"|AdjustCassStatusByType",
                            capability(L"RejectPosition"),
                            capability(L"RestrictCountOfReject"),
                            Device(L"SNRData") + L"|szPhotoPath",
                            Device(L"SNRData") + L"|FSNFilePath",
                            Device(L"SNRData") + L"|dwUseExternalBL",
                            Device(L"SNRData") + L"|dwRecordFAI",
                            capability(L"RetractBillsWhenSPStart"),
                            capability(L"UseVirtualEscrow"),
                            Device(L"REPLENISH") + L"|EnableReplenish",
                            Device(L"REPLENISH") + L"|CasStatusCannotCount",
                            capability(L"ForceDeposite"),
                            capability(L"CountStyleOfRefuseNumberInCashInStatus")});
    ExpectInOrder(Labels(),
                  {L"RestrictCountOfReject", L"szPhotoPath", L"dwOCRCnt2Show", L"LOWORD(dwMakeFullImage)",
                   L"HIWORD(dwMakeFullImage)", L"dwMaxItemPerFile", L"FSNFilePath", L"FSNPolicy", L"CDMReject",
                   L"dwUseExternalBL", L"szComChr", L"dwRecordFAI", L"szFAIApRegSet", L"RetractBillsWhenSPStart",
                   L"HIWORD(EnableReplenish)", L"LOWORD(EnableReplenish)", L"CasTypeCanCount"});
    for (const auto* label : {L"SupportCurrencyID", L"SupportMixNumber", L"EnableReplenish", L"dwMakeFullImage"}) {
        EXPECT_EQ(Line(label), L"") << std::wstring(label).c_str();
    }
}

TEST_F(CRMRegInfoTest, MissingValuesTakeTheirOwnKindOfDefault)
{
    CCRMRegInfo config(L"Svc", false);
    EXPECT_TRUE(config.m_bTryDenominateMultiValue);
    config.m_dwEmptyLimit = 12;
    config.m_dwFullLimitOfRetract = 77;
    config.m_dwAddCassMode = 2;
    config.m_dwAdjustCassStatusByType = 5;
    ASSERT_TRUE(config.Load(&m_log));
    EXPECT_FALSE(config.m_bTryDenominateMultiValue);
    // Limits keep what they held.
    EXPECT_EQ(config.m_dwEmptyLimit, 12U);
    EXPECT_EQ(config.m_dwFullLimitOfRetract, 77U);
    EXPECT_EQ(config.m_dwAddCassMode, 0U);
    EXPECT_EQ(config.m_dwAdjustCassStatusByType, 0x00010001U);
    EXPECT_NE(Line(L"AdjustCassStatusByType").find(L" : 00010001["), std::wstring::npos);
    EXPECT_EQ(config.m_chAppBlackSymbol, L'*');
    Set(Device(L"CAPABILITIES"), L"AppBlackSymbol", L"?x");
    Set(Device(L"CAPABILITIES"), L"DevBlackSymbol", L"");
    ASSERT_TRUE(config.Load(&m_log));
    EXPECT_EQ(config.m_chAppBlackSymbol, L'?');
    EXPECT_EQ(config.m_chDevBlackSymbol, L'\0');
    EXPECT_EQ(LinesLike(L" AppBlackSymbol : ?["), 1U);
    EXPECT_EQ(LinesLike(L" DevBlackSymbol : ["), 1U);
    config.Save();
    EXPECT_EQ(Text(Device(L"CAPABILITIES"), L"AppBlackSymbol"), L"?");
    EXPECT_EQ(Text(Device(L"CAPABILITIES"), L"DevBlackSymbol"), L"");
}

TEST_F(CRMRegInfoTest, ValuesAreCorrectedAfterReading)
{
    CCRMRegInfo config(L"Svc", false);
    Set(Device(L"CAPABILITIES"), L"CheckNotEmptyInCashInStart", 7);
    Set(Device(L"CAPABILITIES"), L"EnableRandSpecMix", 1);
    Set(Device(L"Cassette"), L"StopIfPlugCU", 0x01);
    Set(Device(L"Cassette"), L"RecoverCUStOnReset", 0x0203);
    ASSERT_TRUE(config.Load(&m_log));
    EXPECT_EQ(config.m_dwCheckNotEmptyInCashInStart, 2U);
    EXPECT_EQ(config.m_dwRandSpecMixOrder, 3142U);
    EXPECT_EQ(config.m_dwRecoverCUStOnReset, 0x0200U);
    EXPECT_NE(Line(L"RecoverCUStOnReset").find(L" : 0x0200["), std::wstring::npos);

    Set(Device(L"CAPABILITIES"), L"CheckNotEmptyInCashInStart", 3);
    Set(Device(L"CAPABILITIES"), L"EnableRandSpecMix", DWORD{0});
    Set(Device(L"Cassette"), L"StopIfPlugCU", 0x100); // the low byte is what counts
    ASSERT_TRUE(config.Load(nullptr));
    EXPECT_EQ(config.m_dwCheckNotEmptyInCashInStart, 3U);
    EXPECT_EQ(config.m_dwRandSpecMixOrder, 0U);
    EXPECT_EQ(config.m_dwRecoverCUStOnReset, 0x0203U);

    Set(Device(L"CAPABILITIES"), L"EnableRandSpecMix", 2);
    Set(Device(L"CAPABILITIES"), L"RandSpecMixOrder", 1234);
    ASSERT_TRUE(config.Load(nullptr));
    EXPECT_EQ(config.m_dwRandSpecMixOrder, 1234U);
}

TEST_F(CRMRegInfoTest, WordsAndOccasionsHaveLinesOfTheirOwn)
{
    Set(Device(L"REPLENISH"), L"EnableReplenish", 0x00010003);
    Set(Device(L"SNRData"), L"dwMakeFullImage", 0x00020001);
    Set(Device(L"CAPABILITIES"), L"AddCashInCountAtCIMRetract", 0x24);
    CCRMRegInfo config(L"Svc", false);
    ASSERT_TRUE(config.Load(&m_log));
    EXPECT_NE(Line(L"HIWORD(EnableReplenish)").find(L" : 0x0001["), std::wstring::npos);
    EXPECT_NE(Line(L"LOWORD(EnableReplenish)").find(L" : 0x0003["), std::wstring::npos);
    EXPECT_NE(Line(L"LOWORD(dwMakeFullImage)").find(L" : 0x0001["), std::wstring::npos);
    EXPECT_NE(Line(L"HIWORD(dwMakeFullImage)").find(L" : 0x0002["), std::wstring::npos);
    EXPECT_EQ(LinesLike(L" AddCashInCountAtCIMRetract : "), 2U);
    EXPECT_EQ(LinesLike(L" AddCashInCountAtCIMRetract : 36[occasions"), 1U);
    EXPECT_EQ(LinesLike(L" AddCashInCountAtCDMRetract : "), 2U);
    EXPECT_TRUE(config.NeedAddCashInCountAtCIM(4));
    EXPECT_TRUE(config.NeedAddCashInCountAtCIM(0x21));
    EXPECT_FALSE(config.NeedAddCashInCountAtCIM(2));
    EXPECT_FALSE(config.NeedAddCashInCountAtCDM(4));
}

TEST_F(CRMRegInfoTest, CurrenciesExponentsAndMixNumbersAreRebuiltByEachLoadAndNeverSaved)
{
    const auto joined = [](const CStringArray& items) {
        std::wstring text;
        for (const auto& item : items) {
            text += item.Std() + L"|";
        }
        return text;
    };
    CCRMRegInfo config(L"Svc", false);
    ASSERT_TRUE(config.Load(nullptr));
    EXPECT_EQ(joined(config.m_arSupportCurrencyID), L"CNY|");
    EXPECT_EQ(joined(config.m_arSupportCurrencyExponent), L"0|");
    ASSERT_EQ(config.m_arSupportMixNumber.GetSize(), 3);
    EXPECT_EQ(config.m_arSupportMixNumber[2], 3);

    Set(Device(), L"SupportCurrencyID", L"CNY,USD,EUR");
    Set(Device(), L"SupportCurrencyExponent", L"2");
    Set(Device(), L"SupportMixNumber", L"2,65537,x,,99999999999");
    ASSERT_TRUE(config.Load(nullptr));
    EXPECT_EQ(joined(config.m_arSupportCurrencyID), L"CNY|USD|EUR|");
    EXPECT_EQ(joined(config.m_arSupportCurrencyExponent), L"2|0|0|");
    ASSERT_EQ(config.m_arSupportMixNumber.GetSize(), 5);
    EXPECT_EQ(config.m_arSupportMixNumber[0], 2);
    EXPECT_EQ(config.m_arSupportMixNumber[1], 1); // the low 16 bits
    EXPECT_EQ(config.m_arSupportMixNumber[4], 0);

    Set(Device(), L"SupportCurrencyExponent", L"1,2,3,4");
    ASSERT_TRUE(config.Load(nullptr));
    EXPECT_EQ(joined(config.m_arSupportCurrencyExponent), L"1|2|3|");

    Set(Device(), L"SupportCurrencyID", L"");
    ASSERT_TRUE(config.Load(nullptr));
    EXPECT_EQ(config.m_arSupportCurrencyID.GetSize(), 0);
    EXPECT_EQ(config.m_arSupportCurrencyExponent.GetSize(), 0);
    ClearRecord();
    config.Save();
    for (const auto& write : Writes()) {
        EXPECT_EQ(write.find(L"|Support"), std::wstring::npos);
    }
}

TEST_F(CRMRegInfoTest, AnUnreadableNoteTypeEndsLoad)
{
    SetCount(2);
    SetNoteType(1, 0x1000A, L"CNY", 100, 7);
    Set(Device(L"NoteType\\NoteType2"), L"NoteID", 11);
    Set(Device(L"SNRData"), L"dwAPID", 5);
    Set(Device(L"CAPABILITIES"), L"RestrictCountOfReject", 9);
    Set(Device(L"CAPABILITIES"), L"RetractBillsWhenSPStart", DWORD{0});
    CCRMRegInfo config(L"Svc", false);
    EXPECT_FALSE(config.Load(&m_log));
    EXPECT_EQ(config.m_dwRestrictCountOfReject, 9U);
    EXPECT_EQ(config.m_dwRetractBillsWhenSPStart, 1U);
    EXPECT_EQ(config.m_sBillSNRegInfo.dwAPID, 0U);
    EXPECT_EQ(Line(L"dwAPID"), L"");
    ASSERT_EQ(config.m_arNoteType.GetSize(), 1);
    const auto& type = config.m_arNoteType[0];
    EXPECT_EQ(+type.usNoteID, 10);
    EXPECT_EQ(std::string(type.cCurrencyID, 3), "CNY");
    EXPECT_EQ(+type.bConfigured, TRUE);

    CCRMRegInfo::NoteTypes types;
    for (const auto* bad : {L"", L"CN", L"CNYY"}) {
        SetNoteType(2, 11, bad, 50, 0);
        EXPECT_EQ(config.GetBankNoteTypes(types), WFS_ERR_INTERNAL_ERROR);
    }
    SetNoteType(2, 11, L"CNY", 50, 0);
    EXPECT_TRUE(config.Load(nullptr));
    EXPECT_EQ(config.m_arNoteType.GetSize(), 2);
}

TEST_F(CRMRegInfoTest, NoteTypesAreFoundByIDAndByDenomination)
{
    const CCRMRegInfo config(L"Svc", false);
    CArray<WORD, WORD> ids;
    ids.Add(1);
    EXPECT_EQ(config.GetNoteIDArray(ids), WFS_SUCCESS);
    EXPECT_EQ(ids.GetSize(), 0);
    SetCount(4);
    SetNoteType(1, 21, L"CNY", 50, 1);
    SetNoteType(2, 22, L"CNY", 100, 1);
    SetNoteType(3, 23, L"CNY", 100, 1);
    EXPECT_EQ(config.GetNoteIDArray(ids), WFS_ERR_INTERNAL_ERROR);
    EXPECT_EQ(ids.GetSize(), 3);
    EXPECT_TRUE(config.IsValidNoteID(23)); // as far as the table could be read
    EXPECT_FALSE(config.IsValidNoteID(24));
    EXPECT_EQ(config.GetBankNoteBy(100), 0);
    SetCount(3);
    EXPECT_EQ(config.GetBankNoteBy(100), 22);
    EXPECT_EQ(config.GetBankNoteBy(20), 0);
}

TEST_F(CRMRegInfoTest, ConfigureNoteTypesWritesTheFlagsOfKnownTypesAtOnce)
{
    CCRMRegInfo config(L"Svc", false);
    CCRMRegInfo::NoteTypes types;
    EXPECT_EQ(config.ConfigureNoteTypes(types), WFS_ERR_UNSUPP_DATA);
    SetCount(3);
    SetNoteType(1, 21, L"CNY", 50, 0);
    SetNoteType(2, 22, L"CNY", 100, 0);
    SetNoteType(3, 0x10015, L"CNY", 20, 0); // ID 21 in its low 16 bits
    const auto add = [&](USHORT id, BOOL configured) {
        _wfs_cim_note_type type{};
        type.usNoteID = id;
        type.bConfigured = configured;
        types.Add(type);
    };
    add(21, TRUE);
    add(21, FALSE);
    add(99, TRUE);
    ClearRecord();
    EXPECT_EQ(config.ConfigureNoteTypes(types), WFS_SUCCESS);
    EXPECT_EQ(Commits(), 1U);
    EXPECT_EQ(Writes(), std::vector<std::wstring>{Device(L"NoteType\\NoteType1") + L"|Config"});
    ASSERT_EQ(config.m_arNoteType.GetSize(), 3);
    EXPECT_EQ(+config.m_arNoteType[0].bConfigured, TRUE);
    EXPECT_EQ(Number(Device(L"NoteType\\NoteType1"), L"Config"), 1U);

    // What stands before a subkey without an ID is written.
    SetCount(4);
    types.RemoveAll();
    add(21, FALSE);
    EXPECT_EQ(config.ConfigureNoteTypes(types), WFS_ERR_INTERNAL_ERROR);
    EXPECT_EQ(Number(Device(L"NoteType\\NoteType1"), L"Config"), 0U);
}

// What missing rights do.
class RefusingStore final : public wqspcfg::Store
{
  public:
    RefusingStore(std::shared_ptr<wqspcfg::Store> inner, bool refusesReads)
        : m_inner(std::move(inner)), m_refusesReads(refusesReads)
    {}

    std::unique_ptr<wqspcfg::Transaction> Begin(wqspcfg::Access access, wqspcfg::Error& error) override
    {
        if (access == wqspcfg::Access::Read && !m_refusesReads) {
            return m_inner->Begin(access, error);
        }
        error = {wqspcfg::ErrorKind::AccessDenied, Address() + ": refused"};
        return nullptr;
    }
    const std::string& Address() const noexcept override { return m_inner->Address(); }

  private:
    std::shared_ptr<wqspcfg::Store> m_inner;
    bool m_refusesReads;
};

TEST_F(CRMRegInfoTest, AFailingRegistryIsNotTakenForOneWithoutNoteTypes)
{
    SetCount(1);
    SetNoteType(1, 21, L"CNY", 50, 0);
    CCRMRegInfo config(L"Svc", false);
    ASSERT_TRUE(config.Load(nullptr));
    CCRMRegInfo::NoteTypes types = config.m_arNoteType;
    types[0].bConfigured = TRUE;

    wqspcfg::SetCurrentStore(std::make_shared<RefusingStore>(m_store, false));
    EXPECT_EQ(config.ConfigureNoteTypes(types), WFS_ERR_INTERNAL_ERROR);
    ASSERT_EQ(config.m_arNoteType.GetSize(), 1);
    EXPECT_EQ(+config.m_arNoteType[0].bConfigured, FALSE); // as in the registry

    wqspcfg::SetCurrentStore(std::make_shared<RefusingStore>(m_store, true));
    CArray<WORD, WORD> ids;
    EXPECT_EQ(config.GetNoteIDArray(ids), WFS_ERR_INTERNAL_ERROR);
    EXPECT_EQ(config.GetBankNoteTypes(types), WFS_ERR_INTERNAL_ERROR);
    EXPECT_EQ(config.ConfigureNoteTypes(config.m_arNoteType), WFS_ERR_INTERNAL_ERROR);
}

TEST_F(CRMRegInfoTest, HugeNoteTypeTablesAreNoHarm)
{
    constexpr DWORD kTypes = 5'000;
    {
        WriteScope scope;
        for (DWORD i = 1; i <= kTypes; ++i) {
            SetNoteType(i, i & 0xFFFF, L"CNY", 100, 0);
        }
        SetCount(kTypes);
    }
    CCRMRegInfo config(L"Svc", false);
    ClearRecord();
    ASSERT_TRUE(config.Load(nullptr));
    EXPECT_EQ(config.m_arNoteType.GetSize(), static_cast<INT_PTR>(kTypes));
    config.Save();
    // Load asks for five values of each, Save for the ID and then for all of them again.
    EXPECT_LT(Reads().size(), kTypes * 11 + 500);
    SetCount(0xFFFFFFFF);
    EXPECT_EQ(config.GetBankNoteTypes(config.m_arNoteType), WFS_ERR_INTERNAL_ERROR);
    EXPECT_EQ(config.m_arNoteType.GetSize(), static_cast<INT_PTR>(kTypes));
}

TEST_F(CRMRegInfoTest, SaveWritesInItsOrderInOneCommit)
{
    SetCount(1);
    SetNoteType(1, 21, L"CNY", 50, 1);
    Set(Device(L"CAPABILITIES"), L"EnableRandSpecMix", 1);
    CCRMRegInfo config(L"Svc", false);
    ASSERT_TRUE(config.Load(nullptr));
    config.m_bCheckInputParamOfCDM = false;
    config.m_sBillSNRegInfo.szPhotoPath = L"P";
    config.m_sBillFSNRegInfo.FSNFilePath = L"F";
    config.m_sBillBLRegInfo.dwUseExternalBL = 2;
    config.m_sBillFAIRegInfo.szFAIApRegSet = L"A";
    ClearRecord();
    config.Save();
    EXPECT_EQ(Commits(), 1U);
    const auto writes = Writes();
    const auto capability = [](const wchar_t* name) { return Device(L"CAPABILITIES") + L"|" + name; };
    EXPECT_EQ(writes.front(), capability(L"ForceResetToRTCASInCIM"));
    ExpectInOrder(writes, {capability(L"ForceResetToRTCASInCIM"), capability(L"DelExtraStatus"),
                           Device(L"Cassette\\Limit") + L"|StopCIMIfAllNonMixBoxFullAndHavecyclebox",
                           Device(L"Cassette") + L"|ReportFullOfNoMixCasInCasAndRecycleCas",
                           Device(L"Cassette") + L"|OptAcceptorStaWhenAllNonMixBoxFullAndHavecyclebox",
                           Device(L"NoteType\\NoteType1") + L"|Config", Device(L"SNRData") + L"|szPhotoPath",
                           Device(L"SNRData") + L"|FSNFilePath", Device(L"SNRData") + L"|dwUseExternalBL",
                           Device(L"SNRData") + L"|szFAIApRegSet", capability(L"RetractBillsWhenSPStart"),
                           capability(L"AppBlackSymbol"), capability(L"DevBlackSymbol"),
                           Device(L"REPLENISH") + L"|EnableReplenish", Device(L"REPLENISH") + L"|CasTypeCanCount",
                           Device(L"REPLENISH") + L"|CasStatusCannotCount", capability(L"RandSpecMixOrder")});
    EXPECT_EQ(writes.back(), capability(L"RandSpecMixOrder"));
    EXPECT_EQ(IndexOf(writes, Device(L"NoteType\\NoteType1") + L"|Config"),
              IndexOf(writes, Device(L"Cassette") + L"|OptAcceptorStaWhenAllNonMixBoxFullAndHavecyclebox") + 1);
    for (const auto* name : {L"ReOpenShutterRetOKInCDM", L"TryDenominateMultiValue", L"EnableRandSpecMix"}) {
        EXPECT_EQ(IndexOf(writes, capability(name)), writes.size());
    }
    EXPECT_EQ(Number(Device(L"CAPABILITIES"), L"CheckInputParamOfCDM"), 0U);
    EXPECT_EQ(Number(Device(L"CAPABILITIES"), L"RandSpecMixOrder"), 3142U);
    // What the root saves is another object's to write.
    EXPECT_EQ(Number(Device(L"Policy"), L"IsDeleteSensetiveInfo"), std::nullopt);
}

TEST_F(CRMRegInfoTest, RandSpecMixOrderIsOnlySavedWhereItIsInUse)
{
    CCRMRegInfo config(L"Svc", false);
    ASSERT_TRUE(config.Load(nullptr));
    config.m_dwRandSpecMixOrder = 4321;
    config.Save();
    EXPECT_EQ(Number(Device(L"CAPABILITIES"), L"RandSpecMixOrder"), std::nullopt);
}

class CRMWithoutSNRDataTest : public ConfigTest
{};

TEST_F(CRMWithoutSNRDataTest, LoadAndSaveEndThere)
{
    Set(Device(L"CAPABILITIES"), L"RestrictCountOfReject", 9);
    Set(Device(L"CAPABILITIES"), L"RetractBillsWhenSPStart", DWORD{0});
    CCRMRegInfo config(L"Svc", false);
    EXPECT_FALSE(config.Load(&m_log));
    EXPECT_EQ(config.m_dwRestrictCountOfReject, 9U);
    EXPECT_EQ(config.m_dwRetractBillsWhenSPStart, 1U);
    EXPECT_EQ(Line(L"szPhotoPath"), L"");
    config.m_dwRejectPosition = 1;
    ClearRecord();
    config.Save();
    EXPECT_EQ(Number(Device(L"CAPABILITIES"), L"RejectPosition"), 1U);
    EXPECT_EQ(Number(Device(L"CAPABILITIES"), L"RetractBillsWhenSPStart"), 0U);
    for (const auto& write : Writes()) {
        EXPECT_EQ(write.find(L"SNRData"), std::wstring::npos); // the key is not created
        EXPECT_EQ(write.find(L"REPLENISH"), std::wstring::npos);
    }
}

TEST_F(CRMRegInfoTest, EmptySerialNumberPathsGetTheirDefaults)
{
    CCRMRegInfo config(L"Svc", false);
    EXPECT_EQ(config.m_sBillSNRegInfo.szSNRInfoFileName, CString());
    Set(Device(L"SNRData"), L"FSNFilePath", L"");
    ASSERT_TRUE(config.Load(&m_log));
    EXPECT_EQ(config.m_sBillSNRegInfo.szSNRInfoFileName, CString(L"D:\\SNRInfo.ini"));
    EXPECT_EQ(config.m_sBillFSNRegInfo.FSNFilePath, CString(L"D:\\MyFSN"));
    EXPECT_EQ(config.m_sBillSNRegInfo.dwAPID, 100U);
    EXPECT_NE(Line(L"szSNRInfoFileName").find(L" : D:\\SNRInfo.ini["), std::wstring::npos);
    Set(Device(L"SNRData"), L"FSNFilePath", L"E:\\FSN");
    ASSERT_TRUE(config.Load(nullptr));
    EXPECT_EQ(config.m_sBillFSNRegInfo.FSNFilePath, CString(L"E:\\FSN"));
}

TEST_F(CRMRegInfoTest, NamePartsAreReadUntilTheFirstMissingOneAndLogged)
{
    const auto part = [](unsigned number, DWORD type, const wchar_t* link) {
        const auto key = Device(L"SNRData\\FSNFileNameParts\\Data" + std::to_wstring(number));
        Set(key, L"Type", type);
        Set(key, L"Link", link);
    };
    part(1, 1, L"_");
    part(2, 9, L"");
    part(4, 3, L"");
    CCRMRegInfo config(L"Svc", false);
    ASSERT_TRUE(config.Load(&m_log));
    auto& parts = config.m_sBillFSNRegInfo.FileNameParts;
    ASSERT_EQ(parts.GetSize(), 2);
    EXPECT_EQ(parts[0].Link, CString(L"_"));
    EXPECT_EQ(config.m_sBillFSNRegInfo.FolderParts.GetSize(), 0);
    EXPECT_NE(Line(L"FSNFileNameParts\\Data2.Type").find(L" : 9["), std::wstring::npos);

    // A list that becomes shorter stays shorter.
    part(3, 2, L"");
    parts.RemoveAt(1);
    config.Save();
    ASSERT_TRUE(config.Load(nullptr));
    EXPECT_EQ(parts.GetSize(), 1);
}

TEST_F(CRMRegInfoTest, ANewNamePartDoesNotTakeTheTextsOfOneThatWasRemoved)
{
    CCRMRegInfo config(L"Svc", false);
    auto& parts = config.m_sBillFSNRegInfo.FileNameParts;
    parts.Add({8, L"Op", L"_"});
    config.Save();
    parts.RemoveAll();
    config.Save();
    parts.Add({9, L"", L""});
    config.Save();

    CCRMRegInfo again(L"Svc", false);
    again.Load(&m_log);
    EXPECT_EQ(again.m_sBillFSNRegInfo.FileNameParts, parts);
}

TEST_F(CRMRegInfoTest, SerialNumberRecordsKeepWhatIsStored)
{
    const auto key = Device(L"SNRData");
    Set(key, L"dwAPID", L"7"); // of another type than ours
    Set(key, L"dwPhotoSaveMonth", 7);
    Set(key, L"FSNFileName", L"notes.dat");
    Set(key, L"BankCodeMaxLen", 6);
    Set(key, L"IsUseTermType", 5);
    Set(key, L"FSNFilePath", L"");
    Set(key + L"\\FSNFolderParts\\Data1", L"Type", 2);
    Set(key + L"\\FSNFolderParts\\Data1", L"Value", 8);
    CCRMRegInfo config(L"Svc", false);
    ASSERT_TRUE(config.Load(nullptr));
    EXPECT_EQ(config.m_sBillSNRegInfo.dwPhotoSaveMonth, 7U);
    EXPECT_EQ(config.m_sBillFSNRegInfo.FSNFileName, CString(L"notes.dat"));
    EXPECT_EQ(config.m_sBillFSNRegInfo.BankCodeMaxLen, 6U);
    EXPECT_EQ(config.m_sBillFSNRegInfo.IsUseTermType, 5U);
    ClearRecord();
    config.Save();
    for (const auto& write : Writes()) {
        EXPECT_EQ(write.find(L"SNRData"), std::wstring::npos);
    }
    // What the provider changes is written, and nothing beside it.
    config.m_sBillSNRegInfo.dwAPID = 5;
    config.m_sBillFSNRegInfo.FSNFilePath = L"E:\\FSN";
    config.m_sBillFSNRegInfo.FolderParts[0].Link = L"-";
    ClearRecord();
    config.Save();
    EXPECT_EQ(Number(key, L"dwAPID"), 5U);
    EXPECT_EQ(Text(key, L"FSNFilePath"), L"E:\\FSN");
    EXPECT_EQ(Text(key + L"\\FSNFolderParts\\Data1", L"Link"), L"-");
    EXPECT_EQ(Number(key + L"\\FSNFolderParts\\Data1", L"Value"), 8U);
    EXPECT_EQ(Text(key, L"szTotalTitle"), std::nullopt);
}

TEST_F(CRMRegInfoTest, SerialNumberRecordsLoadAndSaveByAnOpenKey)
{
    Set(Device(L"SNRData"), L"IsUseTermType", DWORD{0});
    wqspcfg::KeyHandle handle;
    ASSERT_TRUE(handle.Open(Device(L"SNRData")));
    tagBillFSNRegInfo fsn;
    EXPECT_EQ(fsn.IsUseTermType, 1U);
    ASSERT_TRUE(fsn.Load(handle.Get()));
    EXPECT_EQ(fsn.IsUseTermType, 0U);
    fsn.BankCode = L"0308";
    tagFSNNamePart part;
    part.Type = 4;
    fsn.FileNameParts.Add(part);
    ClearRecord();
    EXPECT_TRUE(fsn.Save(handle.Get()));
    EXPECT_EQ(Commits(), 1U);
    tagBillFSNRegInfo same;
    ASSERT_TRUE(same.Load(handle.Get()));
    EXPECT_EQ(same.BankCode, CString(L"0308"));
    EXPECT_EQ(same.FileNameParts, fsn.FileNameParts);

    // Without an open key, everything is default.
    EXPECT_FALSE(same.Load(nullptr));
    EXPECT_EQ(same.IsUseTermType, 1U);
    EXPECT_EQ(same.FileNameParts.GetSize(), 0);
    EXPECT_FALSE(same.Save(nullptr));
}

} // namespace
