#include "wqspcfg/classes/IDCRegInfo.h"

#include "support/ConfigTest.h"

#include <algorithm>
#include <ctime>
#include <string>

namespace {

using wqspcfg::test::ConfigTest;

class IDCRegInfoTest : public ConfigTest
{
  protected:
    DWORD LoadedRetainBinHigh(DWORD max, DWORD high)
    {
        Set(Device(L"RetainCardSet"), L"MaxRetainCard", max);
        Set(Device(L"RetainCardSet"), L"RetainBinHigh", high);
        CIDCRegInfo config(L"Svc", false);
        config.Load(nullptr);
        return config.m_dwRetainBinHigh;
    }
};

// Seconds from midnight of "hours_minutes_seconds", or -1.
int SecondOfDay(const CString& strTime)
{
    const auto time = strTime.Std();
    if (time.size() != 8 || time[2] != L'_' || time[5] != L'_') {
        return -1;
    }
    return std::stoi(time) * 3600 + std::stoi(time.substr(3)) * 60 + std::stoi(time.substr(6));
}

TEST_F(IDCRegInfoTest, ConstructorsValuesAreNotAlwaysTheDefaults)
{
    CIDCRegInfo config(L"Svc", false);
    EXPECT_TRUE(config.m_bAllowCardIDEmptyWhenCMRetain);
    EXPECT_FALSE(config.m_bAutoEmptyCardInfoWhenSlotNoCard);
    EXPECT_FALSE(config.m_bIsRCMShowCardReaderStatus);
    EXPECT_FALSE(config.m_bExecBackEntryOfResetReq);
    EXPECT_FALSE(config.m_bRtnSuccessOfNoMediaResetEject);
    EXPECT_EQ(config.m_strDevErrBeepPath, L"");
    EXPECT_EQ(config.m_dwWaitCardTaken, 500U);
    EXPECT_EQ(config.m_dwRetainBinHigh, 15U);
    EXPECT_EQ(sizeof config.m_dwReserved, 512U);
    EXPECT_TRUE(
        std::all_of(std::begin(config.m_dwReserved), std::end(config.m_dwReserved), [](DWORD dw) { return dw == 0; }));
    ASSERT_TRUE(config.Load(nullptr));
    EXPECT_TRUE(config.m_bExecBackEntryOfResetReq);
    EXPECT_TRUE(config.m_bRtnSuccessOfNoMediaResetEject);
    EXPECT_EQ(config.m_strDevErrBeepPath, L"C:\\vexo\\sp\\Config\\sp.data\\DeviceErrSound.wav");
    EXPECT_TRUE(config.m_bCheckMediaWhenSetCardData);
}

TEST_F(IDCRegInfoTest, TheNearlyFullCountStaysBelowTheCapacity)
{
    EXPECT_EQ(LoadedRetainBinHigh(10, 10), 7U);
    EXPECT_EQ(LoadedRetainBinHigh(10, 0), 7U);
    EXPECT_EQ(LoadedRetainBinHigh(10, 9), 9U);
    EXPECT_EQ(LoadedRetainBinHigh(1, 1), DWORD{0});
    EXPECT_EQ(LoadedRetainBinHigh(0, 5), DWORD{0});
    Set(Device(L"RetainCardSet"), L"RetainBinHigh", L"text"); // missing
    Set(Device(L"RetainCardSet"), L"MaxRetainCard", 101);
    CIDCRegInfo config(L"Svc", false);
    config.Load(&m_log);
    EXPECT_EQ(config.m_dwRetainBinHigh, 75U);
    EXPECT_NE(Line(L"RetainBinHigh").find(L" : 75["), std::wstring::npos);
}

TEST_F(IDCRegInfoTest, AZeroPollingIntervalIsReplacedAndItsLineStaysOpen)
{
    Set(Device(L"IdleInterval"), L"WaitCardTaken", DWORD{0});
    CIDCRegInfo config(L"Svc", false);
    config.Load(&m_log);
    EXPECT_EQ(config.m_dwWaitCardTaken, 500U);
    const auto line = Line(L"WaitCardTaken");
    EXPECT_NE(line.find(L"WaitCardTaken : 500[idle"), std::wstring::npos);
    EXPECT_NE(line.back(), L']');
    Set(Device(L"IdleInterval"), L"WaitCardTaken", 120);
    config.Load(nullptr);
    EXPECT_EQ(config.m_dwWaitCardTaken, 120U);
}

TEST_F(IDCRegInfoTest, TheCardReturnModuleIsReadOnlyWhereThereIsOne)
{
    Set(Device(L"SlotInfo"), L"NumOfCycleSlot", 12);
    Set(Device(L"RCM"), L"PrepareNextSlotPolicy", 2);
    {
        CIDCRegInfo config(L"Svc", false);
        config.Load(&m_log);
        EXPECT_EQ(config.m_dwNumOfCycleSlot, 5U);
        EXPECT_TRUE(config.m_bAllowCardIDEmptyWhenCMRetain);
        EXPECT_FALSE(config.m_bAutoEmptyCardInfoWhenSlotNoCard);
        EXPECT_TRUE(Line(L"NumOfCycleSlot").empty());
        EXPECT_EQ(config.m_dwPrepareNextSlotPolicy, 2U);
        const auto reads = Reads();
        EXPECT_EQ(std::count(reads.begin(), reads.end(), Device(L"SlotInfo") + L"|NumOfCycleSlot"), 0);
        // A change of a skipped member is saved all the same.
        config.m_dwSlotInfoType = 3;
        config.Save();
        EXPECT_EQ(Number(Device(L"SlotInfo"), L"SlotInfoType"), 3U);
    }
    Set(Device(L"Control"), L"HaveRCM", 1);
    CIDCRegInfo config(L"Svc", false);
    config.Load(&m_log);
    EXPECT_EQ(config.m_dwNumOfCycleSlot, 12U);
    EXPECT_FALSE(config.m_bAllowCardIDEmptyWhenCMRetain);
    EXPECT_TRUE(config.m_bAutoEmptyCardInfoWhenSlotNoCard);
    EXPECT_TRUE(config.m_bIsRCMShowCardReaderStatus);
    EXPECT_EQ(config.m_dwSlotInfoType, 3U);
}

TEST_F(IDCRegInfoTest, OptimisationDrawsItsOffsetAndFillsItsPeriods)
{
    {
        CIDCRegInfo config(L"Svc", false);
        config.Load(&m_log);
        EXPECT_EQ(config.m_dwOptmDelay, DWORD{0});
        EXPECT_EQ(config.m_strProc1Start, L"");
        EXPECT_TRUE(Line(L"OffsetSec").empty());
    }
    Set(Device(L"Control"), L"OptmPolicy", 1);
    Set(Device(L"Control"), L"OffsetSec", 9999); // never read
    Set(Device(L"Control"), L"Proc2Start", L"");
    Set(Device(L"Control"), L"Proc2Stop", L"03_00_00");
    CIDCRegInfo config(L"Svc", false);
    ClearRecord();
    const auto localSecond = [] {
        const std::time_t now = std::time(nullptr);
        const std::tm local = *std::localtime(&now);
        return local.tm_hour * 3600 + local.tm_min * 60 + local.tm_sec;
    };
    const int before = localSecond();
    config.Load(&m_log);
    const int after = localSecond();
    EXPECT_LT(config.m_dwOffsetSec, 3600U);
    EXPECT_NE(Line(L"OffsetSec").find(L" : " + std::to_wstring(config.m_dwOffsetSec) + L"["), std::wstring::npos);
    EXPECT_EQ(config.m_dwOptmDelay, 7200U);
    for (const auto* start : {&config.m_strProc1Start, &config.m_strProc1Stop}) {
        const int second = SecondOfDay(*start);
        ASSERT_GE(second, 0) << "not a time";
        if (before <= after) { // not at midnight
            EXPECT_GE(second, before);
            EXPECT_LE(second, after);
        }
    }
    EXPECT_EQ(config.m_strProc2Start, L""); // stored, if empty
    EXPECT_EQ(config.m_strProc2Stop, L"03_00_00");
    const auto reads = Reads();
    EXPECT_EQ(std::count(reads.begin(), reads.end(), Device(L"Control") + L"|OffsetSec"), 0);
}

TEST_F(IDCRegInfoTest, SaveHasAnOrderOfItsOwn)
{
    Set(Device(), L"CancelReadRawDataWhenNewReq", 4);
    Set(Device(L"Control"), L"CancelReadRawDataWhenNewReq", DWORD{0});
    CIDCRegInfo config(L"Svc", false);
    config.Load(nullptr);
    EXPECT_TRUE(config.m_bCancelReadRawDataWhenNewReq);
    ClearRecord();
    config.Save();
    EXPECT_EQ(
        Writes(),
        OfDevice({{L"Policy", L"IsDeleteSensetiveInfo"},
                  {L"Control", L"WaitCardReMoveBeforeComplete ResetOfUncommunicateErr ReturnSuccessIfInvalidMedia "
                               L"RtnSuccessOfNoMediaEject"},
                  {L"IdleInterval", L"WaitCardTaken"},
                  {L"RetainCardSet", L"SendCardMoveEventOfRetain"},
                  {L"Control", L"SendInvalidTrackDataEvent"},
                  {L"RetainCardSet", L"ActionOnFull AllowRetainOfRetainBinFull AllowRetainOfHwError"},
                  {L"Control", L"AllowResetCountByErrDevStatu ICCInsertDependChip BroadcastExeeToAllWnd "
                               L"TimeOfAllowCardGate ChangeTimeOfCardGate ChangeCountOfCardGate"},
                  {L"RetainCardSet", L"RetainBinHigh MaxRetainCard CountOfRetained"},
                  {L"Control", L"ApID Track1KeyWord Track2KeyWord Track3KeyWord ActionOfCardHook "
                               L"ExecBackEntryOfResetReq LedFlushTimeOfEject LEDFlushTimeGap HWErrorBuzzerTime "
                               L"LEDBuzzerControl DevErrBeepPath IsSendInsertEvent HaveRCM"},
                  {L"SlotInfo", L"SlotInfoType"},
                  {L"Control", L"IsSaveTimeFromAP IsClearAllSlotWhenCMSETCONT IsChipIODataLenDivideTwo "
                               L"SendMREOnlyIfWaitTaken IsAddExtraMemWhenSavePic"},
                  {L"", L"CancelReadRawDataWhenNewReq"},
                  {L"IdleInterval", L"FastUpdateStatuWhenContactlessPresent"}}));
    EXPECT_EQ(Number(Device(), L"CancelReadRawDataWhenNewReq"), 1U);
}

} // namespace
