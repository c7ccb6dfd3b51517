#include "wqspcfg/classes/IDCRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/CardRetention.h"
#include "wqspcfg/parts/meanings/Shared.h"

#include <ctime>
#include <cwchar>
#include <random>

using namespace wqspcfg;
using C = CIDCRegInfo;

namespace {

constexpr auto kRandomSecond = LoadedBy([](C& c, Loading&) {
    std::minstd_rand random(static_cast<std::minstd_rand::result_type>(std::time(nullptr)));
    c.m_dwOffsetSec = static_cast<DWORD>(random() % 3600);
});

constexpr auto kNowIfMissing = Normalize([](C&, CString& strTime, bool bFound) {
    if (bFound) {
        return;
    }
    const std::time_t now = std::time(nullptr);
    std::tm local{};
#ifdef _WIN32
    localtime_s(&local, &now);
#else
    localtime_r(&now, &local);
#endif
    wchar_t text[128] = {};
    std::wcsftime(text, std::size(text), L"%H_%M_%S", &local);
    strTime = text;
});

constexpr Key kRcm = key::Below(L"RCM");
constexpr Key kSlotInfo = key::Below(L"SlotInfo");

// clang-format off
constexpr Setting kCardReturnModule[] = {
    {kRcm, L"LogicalNameOfRCMIDC", &C::m_strLogicalNameOfRCMIDC, L"",
     L"logical name of the card reader that the card return module opens through the XFS API; empty none",
     RefersTo(Reference::LogicalService)},
    {kSlotInfo, L"NumOfCycleSlot", &C::m_dwNumOfCycleSlot, 5, L"number of circulating card slots"},
    {kRcm, L"AutoReduceCount", &C::m_dwAutoReduceCount, 0,
     L"who sends the reduce-count command: 0 the terminal application; 1 the card return module's service provider",
     OneOf},
    {kRcm, L"IsEmptyCardBaseOnSlotNum", &C::m_dwIsEmptyCardBaseOnSlotNum, 0,
     L"the empty-card command moves cards to the retain bin: 0 by card number; 1 by slot", OneOf},
    {kRcm, L"IsSetMaxRetainCount", &C::m_dwIsSetMaxRetainCount, 0,
     L"the set-count command sets the retain bin's: 0 count; 1 maximum", OneOf},
    {kRcm, L"IsAddUncycleSlotCount", &C::m_dwIsAddUncycleSlotCount, 0,
     L"the card return module's retain count goes up by one when the card reader retains: 0 no; 1 yes", OneOf},
    {kRcm, L"AllowCardIDEmptyWhenCMRetain", &C::m_bAllowCardIDEmptyWhenCMRetain, 0,
     L"a retain of the card return module with an empty card number may put the card into the permanent retain slot "
     L"(the agricultural bank's head-office protocol): 0 no; nonzero yes", Constructed(1)},
    {kRcm, L"AllowCardIDEmptyWhenCMEject", &C::m_bAllowCardIDEmptyWhenCMEject, 1,
     L"an eject of the card return module may perform the clear-card operation (the agricultural bank's head-office "
     L"protocol): 0 no; nonzero yes"},
    {kRcm, L"PolicyRCMRetainCount", &C::m_dwPolicyRCMRetainCount, 0,
     L"counting policy of the permanent retain slot: 0 one more when the permanent slot was prepared and the retain "
     L"succeeded; 1 the card reader's count less the cards in the circulating slots; 2 the agricultural bank's "
     L"head-office rule", OneOf},
    {kRcm, L"AutoEmptyCardInfoWhenSlotNoCard", &C::m_bAutoEmptyCardInfoWhenSlotNoCard, 1,
     L"a slot's card information is cleared automatically when the slot is empty: 0 no; nonzero yes", Constructed(0)},
    {key::Control, L"IsRCMShowCardReaderStatus", &C::m_bIsRCMShowCardReaderStatus, 1,
     L"the card-return status query supports the statuses 06 and 07: 0 no; nonzero yes", Constructed(0)},
    {key::Control, L"IsClearCardReaderRetainCount", &C::m_bIsClearCardReaderRetainCount, 0,
     L"clearing the card return module also zeroes the card reader's retain count: 0 no; nonzero yes"},
    {key::Control, L"IsClearCardRCMRetainCount", &C::m_bIsClearCardRCMRetainCount, 1,
     L"clearing the card return module zeroes its own retain count: 0 no; nonzero yes"},
    {kSlotInfo, L"SlotInfoType", &C::m_dwSlotInfoType, 0,
     L"slot marks after retain and empty: 0 empty slot marked \"F\", filled with \"F\"; 1 \"F\" and \"f\"; 2 \"f\" "
     L"and \"f\"; 3 \"f\" and \"F\"", Saved, OneOf},
    {key::Control, L"IsSaveTimeFromAP", &C::m_dwIsSaveTimeFromAP, 0,
     L"the retain time that the application supplies is kept: 0 no; 1 yes", Saved, OneOf},
    {key::Control, L"IsClearAllSlotWhenCMSETCONT", &C::m_bIsClearAllSlotWhenCMSETCONT, 0,
     L"the card return module's set-count command also clears the circulating slots: 0 no; nonzero yes", Saved},
};

constexpr Setting kOptimisation[] = {
    {key::Control, L"OffsetSec", &C::m_dwOffsetSec, 0,
     L"random offset in seconds, drawn at every load and never read", Range(0, 3599), Computed, kRandomSecond},
    {key::Control, L"Proc1Start", &C::m_strProc1Start, L"",
     L"start of I/O period 1, hours_minutes_seconds; missing: the time of loading", DefaultByClass, kNowIfMissing},
    {key::Control, L"Proc1Stop", &C::m_strProc1Stop, L"",
     L"end of I/O period 1, hours_minutes_seconds; missing: the time of loading", DefaultByClass, kNowIfMissing},
    {key::Control, L"Proc2Start", &C::m_strProc2Start, L"",
     L"start of I/O period 2, hours_minutes_seconds; missing: the time of loading", DefaultByClass, kNowIfMissing},
    {key::Control, L"Proc2Stop", &C::m_strProc2Stop, L"",
     L"end of I/O period 2, hours_minutes_seconds; missing: the time of loading", DefaultByClass, kNowIfMissing},
    {key::Control, L"OptmDelay", &C::m_dwOptmDelay, 7200,
     L"delay in seconds between leaving the operator mode and the start of optimisation", Constructed(0)},
};

constexpr Setting kSettings[] = {
    {kRetainCardSet, L"ActionOnFull", &C::m_dwActionOnFull, 0,
     L"action when the retain bin is full: 0 none; 1 the retain count is reset to zero; 2 the device status becomes "
     L"hardware error", Saved, OneOf},
    {key::Control, L"WaitCardReMoveBeforeComplete", &C::m_bWaitCardReMoveBeforeComplete, 0,
     L"the eject command completes only after the card has been taken: 0 no; nonzero yes", Saved},
    {key::Control, L"ResetOfUncommunicateErr", &C::m_bResetOfUncommunicateErr, 0,
     L"a device fault that is not a communication fault is reset automatically while idle: 0 no; nonzero yes", Saved},
    {kRetainCardSet, L"AllowRetainOfHwError", &C::m_bAllowRetainOfHwError, 0,
     L"retaining is allowed while the device is faulty: 0 no; nonzero yes", Saved},
    {key::Control, L"AllowResetCountByErrDevStatu", &C::m_bAllowResetCountByErrDevStatu, 1,
     L"the retain count may be cleared while the device is faulty or offline: 0 no; nonzero yes", Saved},
    {kRetainCardSet, L"AllowRetainOfRetainBinFull", &C::m_bAllowRetainOfRetainBinFull, 0,
     L"retaining is allowed while the retain bin is full: 0 no; nonzero yes", Saved},
    {key::Control, L"ICCInsertDependChip", &C::m_bICCInsertDependChip, 0,
     L"chip cards are admitted according to whether the media that the application accepts contain WFS_IDC_CHIP: 0 "
     L"no; nonzero yes", Saved},
    {key::Control, L"AutoSelProtocal", &C::m_bAutoSelProtocal, 0,
     L"the chip card protocol is detected automatically, whatever protocol the application asks for: 0 no; nonzero "
     L"yes"},
    {kRetainCardSet, L"SendCardMoveEventOfRetain", &C::m_bSendCardMoveEventOfRetain, 0,
     L"the card-taken event is sent after a successful retain and after a reset that retains: 0 no; nonzero yes",
     Saved},
    {key::Control, L"ReturnSuccessIfInvalidMedia", &C::m_bReturnSuccessIfInvalidMedia, 0,
     L"when every selected track read is empty: 0 invalid media; nonzero WFS_SUCCESS", Saved},
    {key::Control, L"SendInvalidTrackDataEvent", &C::m_bSendInvalidTrackDataEvent, 0,
     L"an event is sent when a track read is empty or invalid: 0 no; nonzero yes", Saved},
    {key::Control, L"RtnFatalErrorOfNoMeida", &C::m_bRtnFatalErrorOfNoMeida, 0,
     L"when the card is taken before reading completes, the no-media error becomes an error code that leads to a "
     L"fatal error: 0 no; nonzero yes"},
    {key::Control, L"RtnSuccessOfNoMediaEject", &C::m_bRtnSuccessOfNoMediaEject, 0,
     L"eject with no card: 0 no media; nonzero WFS_SUCCESS", Saved},
    {key::Control, L"RtnSuccessOfNoMediaResetEject", &C::m_bRtnSuccessOfNoMediaResetEject, 1,
     L"reset with the eject action and no card: 0 no media; nonzero WFS_SUCCESS", Constructed(0)},
    {key::Control, L"SendCardInsertOfTimeOut", &C::m_bSendCardInsertOfTimeOut, 0,
     L"the card-inserted event is sent when waiting for card entry times out after a card was inserted: 0 no; "
     L"nonzero yes"},
    {key::Control, L"BroadcastExeeToAllWnd", &C::m_bBroadcastExeeToAllWnd, 0,
     L"execute events are sent to all windows: 0 no; nonzero yes", Saved},
    {key::IdleInterval, L"WaitCardTaken", &C::m_dwWaitCardTaken, 500,
     L"idle polling interval in ms while waiting for the card to be taken after eject",
     Saved, Line(L"[CFG] %40s : %d[%s"), kPollingInterval<C>},
    {key::Control, L"TimeOfAllowCardGate", &C::m_dwTimeOfAllowCardGate, 180,
     L"seconds that a card may stay in the card gate untaken before the device status becomes hardware error", Saved},
    {key::Control, L"ChangeTimeOfCardGate", &C::m_dwChangeTimeOfCardGate, 10,
     L"seconds over which changes of the card gate's state are watched", Saved},
    {key::Control, L"ChangeCountOfCardGate", &C::m_dwChangeCountOfCardGate, 15,
     L"maximum number of consecutive changes of the card gate's state", Saved},
    {key::Control, L"RetainOnBackInsert", &C::m_dwRetainOnBackInsert, 0,
     L"a card that enters from the rear is retained: 0 never; 1 only during ReadRawData; 2 only while idle; 3 during "
     L"ReadRawData and while idle", OneOf},
    {key::Control, L"NeedFireHwSwErrEventOfRCM", &C::m_bNeedFireHwSwErrEventOfRCM, 0,
     L"the fault event of the card return module is sent when that module fails (the agricultural bank's head-office "
     L"protocol): 0 no; nonzero yes"},
    {kRetainCardSet, L"MaxRetainCard", &C::m_dwMaxRetainCard, 20, meaning::kMaxRetainCard, Saved},
    {kRetainCardSet, L"RetainBinHigh", &C::m_dwRetainBinHigh, 15,
     meaning::kRetainBinHighOfMaxRetainCard, Saved, kBelowCapacity<C>},
    {kRetainCardSet, L"CountOfRetained", &C::m_dwCountOfRetained, 0, meaning::kCountOfRetained, Saved},
    {key::Control, L"ApID", &C::m_dwApID, 0,
     L"application profile (track data format): 0 legacy Tarno standard, tracks 1, 2 and 3 joined with a vertical "
     L"bar; 1 Shenzhen Agricultural Bank, Beichende standard format; 2 Suzhou Agricultural Bank, Guoguang; 3 Beijing "
     L"Pudong Development Bank, Wincor; 4 Hankou Bank, GRG; 5 Tarno; 6 Bohai Bank; 7 Hangzhou Bank; 8 Guangdong "
     L"Rural Credit; 9 Pudong Development Bank high-value machine; 10 Nanyue Bank; 11 Agricultural Bank non-cash; 12 "
     L"Handan Bank; 13 Heilongjiang Rural Credit", Saved, OneOf},
    {key::Control, L"ActionOfCardHook", &C::m_dwActionOfCardHook, 0, L"the actions for which a hook is set", Saved},
    {key::Control, L"LEDBuzzerControl", &C::m_dwLEDBuzzerControl, 14,
     L"actions that drive the light and the buzzer: 0 none; 1 alarm on a device fault; 2 flash while ReadRawData "
     L"waits for a card; 4 flash while waiting for the card to be taken after eject; 8 normal idle; the numbers add "
     L"up", Saved, Range(0, 15)},
    {key::Control, L"Track1KeyWord", &C::m_strTrack1KeyWord, L"", L"keyword for track 1", Saved},
    {key::Control, L"Track2KeyWord", &C::m_strTrack2KeyWord, L"", L"keyword for track 2", Saved},
    {key::Control, L"Track3KeyWord", &C::m_strTrack3KeyWord, L"", L"keyword for track 3", Saved},
    {key::Control, L"ExecBackEntryOfResetReq", &C::m_bExecBackEntryOfResetReq, 1,
     L"a reset with action 0 runs the device's rear-entry command: 0 no; nonzero yes", Saved, Constructed(0)},
    {key::Control, L"LedFlushTimeOfEject", &C::m_dwLedFlushTimeOfEject, 30,
     L"seconds that the contactless take-your-card light flashes after eject", Saved},
    {key::Control, L"HWErrorBuzzerTime", &C::m_dwHWErrorBuzzerTime, 0,
     L"seconds of buzzer alarm on a contactless fault", Saved},
    {key::Control, L"RawDataForceSuccess", &C::m_dwRawDataForceSuccess, 0,
     L"reading returns: 0 the real result; nonzero always success"},
    {key::Control, L"LEDFlushTimeGap", &C::m_dwLEDFlushTimeGap, 500, L"interval of the LED's flashing in ms", Saved},
    {key::Control, L"DevErrBeepPath", &C::m_strDevErrBeepPath, L"C:\\vexo\\sp\\Config\\sp.data\\DeviceErrSound.wav",
     L"path of the sound file for a fault of the card reader", Saved, RefersTo(Reference::File), Constructed(L"")},
    {key::Control, L"IsSendInsertEvent", &C::m_bIsSendInsertEvent, 1,
     L"a read command sends the card-inserted event also when a card is already in the reader: 0 no; nonzero yes",
     Saved},
    {key::Control, L"HaveRCM", &C::m_dwHaveRCM, 0, L"card return module: 0 none; 1 present", Saved, OneOf},
    When([](const C& c) { return c.m_dwHaveRCM != 0; }, Rows<kCardReturnModule>),
    {key::Control, L"IsChipIODataLenDivideTwo", &C::m_dwIsChipIODataLenDivideTwo, 0,
     L"the length of the data sent with chip I/O is halved: 0 no; nonzero yes", Saved},
    {key::Control, L"WaitCardInsertInterval", &C::m_dwWaitCardInsertInterval, 300,
     L"interval of the card-search loop in ms"},
    {key::Control, L"OptmPolicy", &C::m_dwOptmPolicy, 0,
     L"optimisation: 0 none; 1 optimise; 2 on the condition of the card throat; 3 on the condition of the card gate",
     OneOf},
    When([](const C& c) { return c.m_dwOptmPolicy != 0; }, Rows<kOptimisation>),
    {key::Control, L"SendMREOnlyIfWaitTaken", &C::m_bSendMREOnlyIfWaitTaken, 0,
     L"the media-removed event is sent only while waiting for the card to be taken (after reset or eject): 0 no; "
     L"nonzero yes", Saved},
    {key::Control, L"NeedSupportMediaLatched", &C::m_bNeedSupportMediaLatched, 0, meaning::kMediaLatched},
    {key::Control, L"IsAddExtraMemWhenSavePic", &C::m_bIsAddExtraMemWhenSavePic, 1,
     L"the lengths of the front and back image paths get one added: 0 no; nonzero yes", Saved},
    {kRcm, L"PrepareNextSlotPolicy", &C::m_dwPrepareNextSlotPolicy, 0,
     L"slot that is prepared for the next card-return command: 0 the permanent retain slot; 1 an empty slot; 2 no "
     L"movement", OneOf},
    {kRcm, L"RetainWhenInvalidMedia", &C::m_dwRetainWhenInvalidMedia, 1,
     L"the card return module may retain invalid cards: 0 no; 1 yes", OneOf},
    {kRcm, L"CheckMediaWhenSetCardData", &C::m_bCheckMediaWhenSetCardData, 1,
     L"the vendor's set-card-data command checks the card status: 0 no; nonzero yes"},
    {kRcm, L"CheckDevicWhenSetCount", &C::m_bCheckDevicWhenSetCount, 0,
     L"the vendor's set-count command checks the card reader's device status: 0 no; nonzero yes"},
    {key::Device, L"CancelReadRawDataWhenNewReq", &C::m_bCancelReadRawDataWhenNewReq, 0,
     L"a new CRD or IDC command cancels a pending ReadRawData: 0 no; nonzero yes", Saved},
    {key::IdleInterval, L"FastUpdateStatuWhenContactlessPresent", &C::m_bFastUpdateStatuWhenContactlessPresent, 0,
     L"contactless reader, fast status updates: 0 only after eject; nonzero whenever a card is present", Saved},
};

constexpr const wchar_t* kSaved[] = {
    L"WaitCardReMoveBeforeComplete", L"ResetOfUncommunicateErr", L"ReturnSuccessIfInvalidMedia",
    L"RtnSuccessOfNoMediaEject", L"WaitCardTaken", L"SendCardMoveEventOfRetain", L"SendInvalidTrackDataEvent",
    L"ActionOnFull", L"AllowRetainOfRetainBinFull", L"AllowRetainOfHwError", L"AllowResetCountByErrDevStatu",
    L"ICCInsertDependChip", L"BroadcastExeeToAllWnd", L"TimeOfAllowCardGate", L"ChangeTimeOfCardGate",
    L"ChangeCountOfCardGate", L"RetainBinHigh", L"MaxRetainCard", L"CountOfRetained", L"ApID", L"Track1KeyWord",
    L"Track2KeyWord", L"Track3KeyWord", L"ActionOfCardHook", L"ExecBackEntryOfResetReq", L"LedFlushTimeOfEject",
    L"LEDFlushTimeGap", L"HWErrorBuzzerTime", L"LEDBuzzerControl", L"DevErrBeepPath", L"IsSendInsertEvent",
    L"HaveRCM", L"SlotInfoType", L"IsSaveTimeFromAP", L"IsClearAllSlotWhenCMSETCONT", L"IsChipIODataLenDivideTwo",
    L"SendMREOnlyIfWaitTaken", L"IsAddExtraMemWhenSavePic", L"CancelReadRawDataWhenNewReq",
    L"FastUpdateStatuWhenContactlessPresent"};
// clang-format on
constexpr auto kSaveOrder = SaveOrder<kSettings, kSaved>;

} // namespace

WQSPCFG_CLASS_SETTINGS(CIDCRegInfo, L"IDC", kSettings, kSaveOrder)
