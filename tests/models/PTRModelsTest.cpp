#include "wqspcfg/models/idc/SpIDCPrdIDFMotorRegInfo.h"
#include "wqspcfg/models/ptr/SpJOURNALPTREXERegInfo.h"
#include "wqspcfg/models/ptr/SpPTRBrotherHL5595DNRegInfo.h"
#include "wqspcfg/models/ptr/SpPTREpsonPLQ20KMRegInfo.h"
#include "wqspcfg/models/ptr/SpPTRFXP355dbRegInfo.h"
#include "wqspcfg/models/ptr/SpPTRFujitsuDPK210RegInfo.h"
#include "wqspcfg/models/ptr/SpPTRGHPOS1900RegInfo.h"
#include "wqspcfg/models/ptr/SpPTRHPPW552DWRegInfo.h"
#include "wqspcfg/models/ptr/SpPTRJT58RegInfo.h"
#include "wqspcfg/models/ptr/SpPTRMP512RegInfo.h"
#include "wqspcfg/models/ptr/SpPTRPrdFPCNormalRegInfo.h"
#include "wqspcfg/models/ptr/SpPTRPrdIDFMotorRegInfo.h"
#include "wqspcfg/models/ptr/SpPTRPrdRPRRegInfo.h"
#include "wqspcfg/models/ptr/SpPTRRID100RegInfo.h"
#include "wqspcfg/models/ptr/SpPTRRSV100RegInfo.h"
#include "wqspcfg/models/ptr/SpPTRSK5015GRegInfo.h"
#include "wqspcfg/models/ptr/SpPTRScanD412RegInfo.h"
#include "wqspcfg/models/ptr/SpPTRWQRID100RegInfo.h"
#include "wqspcfg/models/ptr/SpPTRWQRSV100RegInfo.h"
#include "wqspcfg/models/ptr/SpPtrReceiptLT2320RegInfo.h"
#include "wqspcfg/models/ptr/SpReceiptPtrExeRegInfo.h"

#include "support/ConfigTest.h"

#include <algorithm>

namespace {

using wqspcfg::test::ConfigTest;
using Paths = std::vector<std::wstring>;

class PTRModelsTest : public ConfigTest
{
  protected:
    // What an operation writes; it is one commit of its own.
    template <class F>
    Paths WritesOf(F operation)
    {
        ClearRecord();
        operation();
        EXPECT_EQ(Commits(), 1U);
        return ConfigTest::Writes();
    }
};

// ---- ticket printers ----

TEST_F(PTRModelsTest, AFieldIsPrintedAsTextWhenTheListNamesIt)
{
    CSpPTRRID100RegInfo config(L"Svc", false);
    ASSERT_TRUE(config.Load(nullptr));
    EXPECT_FALSE(config.IsPrintAsTextField(L"Amount"));
    EXPECT_FALSE(config.IsPrintAsTextField(L""));

    Set(Device(), L"FieldsPrintAsText", L"Amount;;Date");
    ASSERT_TRUE(config.Load(nullptr));
    EXPECT_TRUE(config.IsPrintAsTextField(L"Amount"));
    EXPECT_TRUE(config.IsPrintAsTextField(L"Date"));
    EXPECT_FALSE(config.IsPrintAsTextField(L"amount"));
    EXPECT_FALSE(config.IsPrintAsTextField(L"Amount;"));
    EXPECT_FALSE(config.IsPrintAsTextField(L"Dat"));
    EXPECT_FALSE(config.IsPrintAsTextField(L""));
}

TEST_F(PTRModelsTest, TheTicketPrinterKeepsItsCountsInKeysOfTheirOwn)
{
    const auto bin = Device(L"RetainBins\\RetainBin0");
    Set(bin, L"Count", 17);
    Set(Device(), L"PaperCount", 40);
    CSpPTRRID100RegInfo config(L"Svc", false);
    ASSERT_TRUE(config.Load(nullptr));
    EXPECT_EQ(config.m_dwRetainBinCount, 0U); // no part of Load
    config.LoadRetainBinCount();
    EXPECT_EQ(config.m_dwRetainBinCount, 17U);
    EXPECT_EQ(WritesOf([&] { config.SaveRetainBinCount(); }), Paths{bin + L"|Count"});
    EXPECT_EQ(Number(bin, L"Count"), 17U);

    config.m_dwPaperCount = 39;
    EXPECT_EQ(WritesOf([&] { config.SaveSetPaperCount(); }), Paths{Device(L"PaperCounts") + L"|PaperCount"});
    EXPECT_EQ(Number(Device(L"PaperCounts"), L"PaperCount"), 39U);
    EXPECT_EQ(Number(Device(), L"PaperCount"), 40U);

    // Load reads the count where Save writes it.
    CSpPTRRID100RegInfo restarted(L"Svc", false);
    ASSERT_TRUE(restarted.Load(nullptr));
    EXPECT_EQ(restarted.m_dwPaperCount, 40U);
    config.Save();
    EXPECT_EQ(Number(bin, L"Count"), 17U);
    ASSERT_TRUE(restarted.Load(nullptr));
    EXPECT_EQ(restarted.m_dwPaperCount, 39U);
}

TEST_F(PTRModelsTest, SimulationDataAreReadOnDemandOnly)
{
    Set(Device(L"Sim"), L"SimCheckNo", L"0042");
    Set(Device(L"Sim"), L"SimRFIDData", L"E004");
    const auto check = [&](auto& config) {
        ASSERT_TRUE(config.Load(&m_log));
        EXPECT_TRUE(config.m_strSimCheckNo.IsEmpty());
        EXPECT_EQ(Line(L"SimCheckNo"), L"");
        config.LoadSimData(&m_log);
        EXPECT_EQ(config.m_strSimCheckNo, L"0042");
        EXPECT_EQ(config.m_strSimRFIDData, L"E004");
        EXPECT_NE(Line(L"SimRFIDData").find(L" : E004["), std::wstring::npos);
        m_log.Clear();
    };
    CSpPTRRID100RegInfo config(L"Svc", false);
    check(config);
    CSpPTRWQRID100RegInfo other(L"Svc", false);
    check(other);
}

TEST_F(PTRModelsTest, EachRetainBinKeepsItsCountInItsKey)
{
    const auto bin = [](unsigned n) { return Device(L"RetainBins\\RetainBin" + std::to_wstring(n)); };
    Set(bin(0), L"RetainBinCount", 5);
    Set(bin(3), L"RetainBinCount", 8);
    const auto check = [&](auto& config) {
        ASSERT_TRUE(config.Load(nullptr));
        EXPECT_EQ(config.m_dwRetainBinCount[0], 5U);
        EXPECT_EQ(config.m_dwRetainBinCount[1], 0U);
        EXPECT_EQ(config.m_dwRetainBinCount[3], 8U);
    };
    CSpPTRWQRSV100RegInfo other(L"Svc", false);
    check(other);
    CSpPTRRSV100RegInfo config(L"Svc", false);
    check(config);
    config.m_dwRetainBinCount[0] = 6;
    EXPECT_EQ(WritesOf([&] { config.SaveRetainBinCount(); }),
              (Paths{bin(0) + L"|RetainBinCount", bin(1) + L"|RetainBinCount", bin(2) + L"|RetainBinCount",
                     bin(3) + L"|RetainBinCount"}));
    EXPECT_EQ(Number(bin(0), L"RetainBinCount"), 6U);
    EXPECT_EQ(Number(bin(3), L"RetainBinCount"), 8U);
    other.Load(nullptr);
    other.Save();
    EXPECT_EQ(Number(bin(0), L"RetainBinCount"), 6U);
}

// ---- counters ----

TEST_F(PTRModelsTest, TheReceiptsLeftCountDownToZeroAndStartAgain)
{
    const auto check = [&](auto& config, DWORD& dwLeft, auto down, auto reset, const std::wstring& written) {
        ASSERT_TRUE(config.Load(nullptr));
        dwLeft = 1;
        EXPECT_EQ(WritesOf([&] { (config.*down)(); }), Paths{written});
        EXPECT_EQ(dwLeft, 0U);
        (config.*down)();
        EXPECT_EQ(dwLeft, 0U);
        EXPECT_EQ(WritesOf([&] { (config.*reset)(); }), Paths{written});
        EXPECT_EQ(dwLeft, 100U);
    };
    CSpPtrReceiptLT2320RegInfo receipt(L"Svc", false);
    check(receipt, receipt.m_dwCurLastCount, &CSpPtrReceiptLT2320RegInfo::DescCurLowCount,
          &CSpPtrReceiptLT2320RegInfo::ResetCurLowCount, Device() + L"|CurLastCount");
    CSpReceiptPtrExeRegInfo driven(L"Svc", false);
    check(driven, driven.m_dwCurLastCount, &CSpReceiptPtrExeRegInfo::DescCurLowCount,
          &CSpReceiptPtrExeRegInfo::ResetCurLowCount, Device() + L"|CurLastCount");
    CSpPTRJT58RegInfo control(L"Svc", false);
    check(control, control.m_dwCurCountWhenLow, &CSpPTRJT58RegInfo::ReduceLowCount, &CSpPTRJT58RegInfo::ResetLowCount,
          Device(L"Control") + L"|CurCountWhenLow");
    EXPECT_EQ(Number(Device(L"Control"), L"CurCountWhenLow"), 100U);

    CSpPTRGHPOS1900RegInfo down(L"Svc", false);
    ASSERT_TRUE(down.Load(nullptr));
    EXPECT_EQ(WritesOf([&] { down.DescCurLowCount(); }), Paths{Device(L"Control") + L"|CurLastCount"});
    EXPECT_EQ(Number(Device(L"Control"), L"CurLastCount"), 99U);
}

TEST_F(PTRModelsTest, TheReceiptsLeftOfThePlainPrinterLiveInTheRegistry)
{
    CSpPTRMP512RegInfo config(L"Svc", false);
    ASSERT_TRUE(config.Load(nullptr));
    config.DescCurLowCount();
    EXPECT_EQ(Number(Device(), L"CurLastCount"), std::nullopt);
    Set(Device(), L"CurLastCount", 2);
    for (const DWORD dwLeft : {1U, 0U, 0U}) {
        config.DescCurLowCount();
        EXPECT_EQ(Number(Device(), L"CurLastCount"), dwLeft);
    }
}

TEST_F(PTRModelsTest, AResetOfTheValuesSparesTheCounters)
{
    CSpPtrReceiptLT2320RegInfo config(L"Svc", false);
    ASSERT_TRUE(config.Load(nullptr));
    config.m_strFontName = L"Other";
    config.m_dwCurLastCount = 7;
    config.m_dwPrintedLenght = 1234;
    config.m_dwApID = 3; // the class base's
    ClearRecord();
    config.ResetValue();
    EXPECT_EQ(Commits(), 0U);
    EXPECT_EQ(config.m_strFontName, L"SimSun");
    EXPECT_EQ(config.m_dwCurLastCount, 7U);
    EXPECT_EQ(config.m_dwApID, 3U);
    EXPECT_EQ(WritesOf([&] { config.SavePrintedLength(); }), Paths{Device() + L"|PrintedLenght"});
    EXPECT_EQ(Number(Device(), L"PrintedLenght"), 1234U);
}

TEST_F(PTRModelsTest, RetractedMediaAreCountedAtOnce)
{
    const auto check = [&](auto& config) {
        Set(Device(), L"RetractCount", 4);
        ASSERT_TRUE(config.Load(nullptr));
        EXPECT_EQ(WritesOf([&] { config.AddCurCount(); }), Paths{Device() + L"|RetractCount"});
        EXPECT_EQ(Number(Device(), L"RetractCount"), 5U);
        config.m_dwRetractCount = 0xFFFFFFFF;
        config.AddCurCount();
        EXPECT_EQ(Number(Device(), L"RetractCount"), 0xFFFFFFFF); // an absurd count does not become an empty bin
        config.ResetZeroCount();
        EXPECT_EQ(Number(Device(), L"RetractCount"), 0U);
    };
    CSpPTRScanD412RegInfo scanner(L"Svc", false);
    check(scanner);
    CSpPTRSK5015GRegInfo other(L"Svc", false);
    check(other);
    EXPECT_TRUE(other.IsStartScan());
    Set(Device(), L"IsStartScan", DWORD{0});
    ASSERT_TRUE(other.Load(nullptr));
    EXPECT_FALSE(other.IsStartScan());

    CSpPTRPrdRPRRegInfo receipt(L"Svc", false);
    ASSERT_TRUE(receipt.Load(nullptr));
    EXPECT_EQ(WritesOf([&] { receipt.SetRetractCount(3); }), Paths{Device(L"Control") + L"|RetractCount"});
    EXPECT_EQ(WritesOf([&] { receipt.SetCurLastCount(9); }), Paths{Device(L"Control") + L"|CurLastCount"});
    EXPECT_EQ(receipt.m_dwRetractCount, 3U);
    EXPECT_EQ(Number(Device(L"Control"), L"CurLastCount"), 9U);
}

// ---- keys of their own ----

TEST_F(PTRModelsTest, TheJournalPrinterReadsTheDriversKeyAndLeavesIt)
{
    const std::wstring driver = L"SOFTWARE\\TARNO\\Driver\\WQDrJournal";
    Set(driver, L"PrintHeight", 48);
    Set(Device(L"PrintParam"), L"ColumnWidth", 32);
    Set(Device(), L"IsSimulate", 1);
    CSpJOURNALPTREXERegInfo config(L"Svc", false);
    ASSERT_TRUE(config.Load(nullptr));
    EXPECT_EQ(config.m_dwPrintHeight, 48U);
    EXPECT_EQ(config.m_dwColumnWidth, 32U);
    EXPECT_TRUE(config.m_bIsSimulate);
    config.m_dwPrintHeight = 24;
    ClearRecord();
    config.Save();
    EXPECT_EQ(Number(driver, L"PrintHeight"), 48U);
    EXPECT_EQ(Number(driver, L"SizeBt2Lines"), std::nullopt);
    EXPECT_EQ(Number(Device(L"PrintParam"), L"ColumnWidth"), 32U);
}

// The page printers ask for a setting of their class base once more; it stays one setting.
TEST_F(PTRModelsTest, APagePrinterSharesASettingWithItsClassBase)
{
    Set(Device(), L"CheckInputParam", 3);
    CSpPTRBrotherHL5595DNRegInfo config(L"Svc", false);
    ASSERT_TRUE(config.Load(nullptr));
    const CPTRRegInfo& base = config;
    EXPECT_EQ(base.m_dwCheckInputParam, 3U);
    EXPECT_EQ(&base.m_dwCheckInputParam, &config.m_dwCheckInputParam);
}

TEST_F(PTRModelsTest, TheStampingUnitHasItsKeyByThePrinter)
{
    const auto check = [](auto& config, const std::wstring& key) {
        Set(key, L"StampNumber", 2);
        Set(key, L"ThirdYPos", 30);
        Set(Device(L"Stamp"), L"IsStamp", 1);
        ASSERT_TRUE(config.Load(nullptr));
        EXPECT_TRUE(config.m_bIsStamp);
        EXPECT_EQ(config.m_dwStampNumber, 2U);
        EXPECT_EQ(config.m_dwThirdYPos, 30U);
        config.m_dwStampNumber = 3;
        config.Save();
        EXPECT_EQ(Number(key, L"StampNumber"), 3U);
    };
    CSpPTRFXP355dbRegInfo own(L"Svc", false);
    check(own, Device(L"Stamp\\NEWBSIDBTS100"));
    EXPECT_EQ(Number(Device(L"Stamp"), L"StampNumber"), std::nullopt);
    CSpPTRHPPW552DWRegInfo plain(L"Svc", false);
    check(plain, Device(L"Stamp"));
}

TEST_F(PTRModelsTest, PassbookPrintersNameOneSettingInTheirOwnWay)
{
    Set(Device(), L"m_dwUseOneForm", 1);
    Set(Device(), L"UseOneForm", 2);
    Set(Device(), L"strTrack2", L"two");
    Set(Device(), L"Track2", L"2");
    Set(Device(), L"PageLen", 24);
    CSpPTREpsonPLQ20KMRegInfo epson(L"Svc", false);
    CSpPTRFujitsuDPK210RegInfo fujitsu(L"Svc", false);
    ASSERT_TRUE(epson.Load(nullptr));
    ASSERT_TRUE(fujitsu.Load(nullptr));
    EXPECT_EQ(epson.m_dwUseOneForm, 1U);
    EXPECT_EQ(fujitsu.m_dwUseOneForm, 2U);
    EXPECT_EQ(epson.m_strTrack2, L"2");
    EXPECT_EQ(fujitsu.m_strTrack2, L"two");
    EXPECT_EQ(epson.m_dwPageLen, 24U);
    EXPECT_EQ(fujitsu.m_dwPageLen, 24U);
    EXPECT_EQ(fujitsu.m_dwInitCount, epson.m_dwInitCount);
}

// One device, served as a card reader or as a printer: what it does by itself does not hang on which.
TEST_F(PTRModelsTest, TheIdentityCardReaderEjectsByTheSameDefaultsInBothClasses)
{
    CSpIDCPrdIDFMotorRegInfo reader(L"Svc", false);
    CSpPTRPrdIDFMotorRegInfo printer(L"Svc", false);
    ASSERT_TRUE(reader.Load(nullptr));
    ASSERT_TRUE(printer.Load(nullptr));
    EXPECT_EQ(printer.m_bIsEjectAfterScan, reader.m_bIsEjectAfterScan);
    EXPECT_EQ(printer.m_dwEjectAfterScanTime, reader.m_dwEjectAfterScanTime);
    EXPECT_EQ(printer.m_dwOpenAction, reader.m_dwOpenAction);
}

// ---- fingerprint collectors ----

TEST_F(PTRModelsTest, TheFingerprintCollectorLoadsAndSavesBothItsBases)
{
    Set(Device(), L"ProtocolType", 2);
    Set(Device(L"Collect"), L"IntervalOfTemplate", 6);
    Set(Device(), L"ApID", 8);
    Set(Device(), L"DelDataAfterMatchFinger", 1);
    CSpPTRPrdFPCNormalRegInfo config(L"Svc", false);
    EXPECT_EQ(config.m_strDN_FPC_NORMAL, L"WQDrFPCWEL410AFE");
    ASSERT_TRUE(config.Load(&m_log));
    EXPECT_EQ(config.m_dwProtocolType, 2U);
    EXPECT_EQ(config.m_dwIntervalOfTemplate, 6U);
    EXPECT_EQ(config.m_dwApID, 8U);
    EXPECT_TRUE(config.m_bDelDataAfterMatchFinger);

    config.m_dwProtocolType = 0;
    config.m_dwIntervalOfTemplate = 7;
    const auto writes = WritesOf([&] { config.Save(); });
    EXPECT_EQ(std::count(writes.begin(), writes.end(), Device() + L"|ProtocolType"), 1);
    EXPECT_EQ(writes.back(), Device() + L"|DelDataAfterMatchFinger");
    EXPECT_EQ(Number(Device(), L"ProtocolType"), 0U);
    EXPECT_EQ(Number(Device(L"Collect"), L"IntervalOfTemplate"), 7U);
}

TEST_F(PTRModelsTest, TheReadImageRulesFollowTheirKey)
{
    CSpPTRPrdFPCNormalRegInfo config(L"Svc", false);
    ASSERT_TRUE(config.Load(nullptr));
    EXPECT_FALSE(config.LoadReadImageRuleCfg(nullptr));
    config.m_mapReadImageRule.SetAt(L"Old", L"gone");
    Set(Device(L"ReadImageRule"), L"Front", L"bmp");
    EXPECT_TRUE(config.LoadReadImageRuleCfg(&m_log));
    EXPECT_EQ(config.m_mapReadImageRule.GetCount(), 1);
    EXPECT_EQ(config.m_mapReadImageRule[L"Front"], L"bmp");
    EXPECT_NE(Line(L"Front").find(L" : bmp["), std::wstring::npos);
}

} // namespace
