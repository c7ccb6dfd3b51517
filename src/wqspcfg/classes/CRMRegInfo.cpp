#include "wqspcfg/classes/CRMRegInfo.h"

#include "wqspcfg/core/RegistryRoots.h"
#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/serial/SerialRows.h"
#include "wqspcfg/platform/text/NarrowText.h"
#include "wqspcfg/platform/utility/StringUtility.h"
#include "wqspcfg/platform/xfs/XfsResult.h"

#include <algorithm>
#include <cstring>
#include <iterator>

using namespace wqspcfg;
using C = CCRMRegInfo;

namespace {

constexpr Key kCassette = key::Below(L"Cassette");
constexpr Key kLimit = key::Below(L"Cassette\\Limit");
constexpr Key kReplenish = key::Below(L"REPLENISH");
constexpr Key kNoteTypes = key::Below(L"NoteType");
constexpr Key kNoteTypeOf = key::Below(L"NoteType\\NoteType%d");
// ---- currencies and mix algorithms ----

void LoadCurrencies(C& c, Loading& loading)
{
    CString strList;
    if (loading.Query(key::Device, L"SupportCurrencyID", strList)) {
        CStringUtility::SplitString(c.m_arSupportCurrencyID, strList, L',');
    } else {
        c.m_arSupportCurrencyID.RemoveAll();
        c.m_arSupportCurrencyID.Add(L"CNY");
    }
}

void LoadExponents(C& c, Loading& loading)
{
    CStringArray& exponents = c.m_arSupportCurrencyExponent;
    exponents.RemoveAll();
    CString strList;
    if (loading.Query(key::Device, L"SupportCurrencyExponent", strList)) {
        CStringUtility::SplitString(exponents, strList, L',');
    }
    const INT_PTR nCurrencies = c.m_arSupportCurrencyID.GetSize();
    if (exponents.GetSize() > nCurrencies) {
        exponents.SetSize(nCurrencies);
    }
    while (exponents.GetSize() < nCurrencies) {
        exponents.Add(L"0");
    }
}

void LoadMixNumbers(C& c, Loading& loading)
{
    c.m_arSupportMixNumber.RemoveAll();
    CString strList(L"1,2,3");
    loading.Query(key::Device, L"SupportMixNumber", strList);
    CStringArray items;
    CStringUtility::SplitString(items, strList, L',');
    for (const auto& strItem : items) {
        int nNumber = 0; // where the item is no number
        CStringUtility::atoi(nNumber, strItem, 10);
        c.m_arSupportMixNumber.Add(static_cast<WORD>(nNumber));
    }
}

constexpr auto kLoadCurrencies = LoadedBy([](C& c, Loading& loading) { LoadCurrencies(c, loading); });
constexpr auto kLoadExponents = LoadedBy([](C& c, Loading& loading) { LoadExponents(c, loading); });
constexpr auto kLoadMixNumbers = LoadedBy([](C& c, Loading& loading) { LoadMixNumbers(c, loading); });

// ---- serial numbers ----

bool OpenSNRData(C& c)
{
    return c.m_keySNRData.Open(FormatString(L"%s%s\\%s", kDeviceRoot, c.GetExeDllMother(1, nullptr), kSnrData.subkey));
}

constexpr auto kOpenSNRData = Step([](C& c, Loading&) -> bool { return OpenSNRData(c); });
template <auto Record>
constexpr auto kLoadRecord = [](C& c, Loading&) -> bool { return (c.*Record).Load(c.m_keySNRData.Get()); };

// ---- corrections ----

constexpr auto kCheckNotEmpty = Normalize([](C&, DWORD dwValue, bool) -> DWORD { return dwValue <= 3 ? dwValue : 2; });

constexpr auto kMixOrderWhereRandom = Normalize(
    [](C& c, DWORD dwOrder, bool) -> DWORD { return c.m_dwEnableRandSpecMix != 0 && dwOrder == 0 ? 3142 : dwOrder; });

// The states of the low byte are not restored where plugging a cassette has a consequence.
constexpr auto kRecoverUnlessPlugged = Normalize(
    [](C& c, DWORD dwStates, bool) -> DWORD { return LOBYTE(c.m_dwStopIfPlugCU) != 0 ? dwStates & 0xFF00 : dwStates; });

// ---- further lines of a value ----

constexpr Setting kCIMOccasions{
    key::Capabilities, L"AddCashInCountAtCIMRetract", DwordValue, 0,
    L"occasions, bit set: 1 open request; 2 reset request; 4 idle; 8 start exchange; 16 end exchange; "
    L"32 retract request; 64 cash-in start; 128 cash-in end"};
constexpr Setting kCDMOccasions{
    key::Capabilities, L"AddCashInCountAtCDMRetract", DwordValue, 0,
    L"occasions, bit set: 1 open request; 2 reset request; 4 idle; 8 start exchange; 16 end exchange; "
    L"32 retract request; 64 dispense request; 128 present; 256 count request; 512 test cash units"};
constexpr Setting kReplenishHighWord{
    kReplenish,       L"HIWORD(EnableReplenish)", DwordValue, 0, L"automatic replenishment and clear-out: 0 off; 1 on",
    Format(L"0x%04x")};
constexpr Setting kReplenishLowWord{
    kReplenish,
    L"LOWORD(EnableReplenish)",
    DwordValue,
    0,
    L"automatic counting, bit set: 1 of the cassettes that the application lists; 2 of all countable cassettes when "
    L"it lists none",
    Format(L"0x%04x")};

constexpr auto kLogCIMOccasions =
    Step([](C& c, Loading& loading) { loading.Print(kCIMOccasions, c.m_dwAddCashInCountAtCIMRetract); });
constexpr auto kLogCDMOccasions =
    Step([](C& c, Loading& loading) { loading.Print(kCDMOccasions, c.m_dwAddCashInCountAtCDMRetract); });
constexpr auto kLogReplenishWords = Step([](C& c, Loading& loading) {
    loading.Print(kReplenishHighWord, HIWORD(c.m_dwEnableReplenish));
    loading.Print(kReplenishLowWord, LOWORD(c.m_dwEnableReplenish));
});
template <class By>
void RememberNoteTypes(const C& c, By& by);
constexpr auto kLoadNoteTypes = Step([](C& c, Loading& loading) -> bool {
    const bool bLoaded = c.GetBankNoteTypes(c.m_arNoteType) == WFS_SUCCESS;
    RememberNoteTypes(c, loading);
    return bLoaded;
});

// clang-format off
constexpr Setting kSettings[] = {
    {key::Capabilities, L"ForceResetToRTCASInCIM", &C::m_bForceResetToRTCASInCIM, 0,
     L"a CIM reset always moves notes to the retract cassette: 0 no; nonzero yes", Saved},
    {key::Capabilities, L"ForceResetToRTCASInCDM", &C::m_bForceResetToRTCASInCDM, 0,
     L"a CDM reset always moves notes to the retract cassette: 0 no; nonzero yes", Saved},
    {key::Capabilities, L"UseSPAutoReset", &C::m_bUseSPAutoReset, 0,
     L"the provider resets the device by itself: 0 no; nonzero yes", Saved},
    {key::Capabilities, L"CheckInputParamOfCDM", &C::m_bCheckInputParamOfCDM, 1,
     L"the CDM validates the parameters of application requests: 0 no; nonzero yes", Saved},
    {key::Capabilities, L"CheckInputParamOfCIM", &C::m_bCheckInputParamOfCIM, 1,
     L"the CIM validates the parameters of application requests: 0 no; nonzero yes", Saved},
    {key::Capabilities, L"ReCloseShutterRetOKInCDM", &C::m_bReCloseShutterRetOKInCDM, 0,
     L"closing a CDM shutter that is closed already succeeds: 0 no; nonzero yes", Saved},
    {key::Capabilities, L"ReCloseShutterRetOKInCIM", &C::m_bReCloseShutterRetOKInCIM, 0,
     L"closing a CIM shutter that is closed already succeeds: 0 no; nonzero yes", Saved},
    {key::Capabilities, L"ReOpenShutterRetOKInCDM", &C::m_bReOpenShutterRetOKInCDM, 0,
     L"opening a CDM shutter that is open already succeeds: 0 no; nonzero yes"},
    {key::Capabilities, L"ReOpenShutterRetOKInCIM", &C::m_bReOpenShutterRetOKInCIM, 0,
     L"opening a CIM shutter that is open already succeeds: 0 no; nonzero yes"},
    {key::Capabilities, L"AllowDispenseWhenSafeDoorOpen", &C::m_bAllowDispenseWhenSafeDoorOpen, 0,
     L"dispensing is allowed with the safe door open: 0 no; nonzero yes", Saved},
    {key::Capabilities, L"AllowPresentWhenSafeDoorOpen", &C::m_bAllowPresentWhenSafeDoorOpen, 0,
     L"presenting is allowed with the safe door open: 0 no; nonzero yes", Saved},
    {key::Capabilities, L"AllowDepositWhenSafeDoorOpen", &C::m_bAllowDepositWhenSafeDoorOpen, 1,
     L"deposit transactions are allowed with the safe door open: 0 no; nonzero yes", Saved},
    {key::Capabilities, L"AllowTestUnitWhenSafeDoorOpen", &C::m_dwAllowTestUnitWhenSafeDoorOpen, 1,
     L"test-cash-units with the safe door open: 0 no; 1 yes and notes are dispensed; 2 yes but only a forced device "
     L"reset, no notes", Saved, OneOf},
    {key::Capabilities, L"ResetRetSucceedWhenSafeDoorOpen", &C::m_dwResetRetSucceedWhenSafeDoorOpen, 1,
     L"a reset with the safe door open reports: 0 failure; 1 success", Saved, OneOf},
    {key::Capabilities, L"ExchangeCheckSafeDoorOpen", &C::m_dwExchangeCheckSafeDoorOpen, 0,
     L"the safe door is checked at start and end exchange, bit set: 0x0001 the CIM checks; 0x0002 the CDM checks; "
     L"0x0010 at start exchange; 0x0020 at end exchange; 0x0040 at end exchange after (clear: before) the counts are "
     L"updated", Saved},
    {key::Capabilities, L"CheckNotEmptyInCashInStart", &C::m_dwCheckNotEmptyInCashInStart, 2,
     L"cash-in start checks that the slot and the escrow are empty: 0 no check; 1 conditionally no check; 2 checks "
     L"the closed area and the slot; 3 checks; any other number acts as 2", Saved, Range(0, 3), kCheckNotEmpty},
    {key::Capabilities, L"KeepInShutterOpenInCashIn", &C::m_dwKeepInShutterOpenInCashIn, 0,
     L"the input shutter stays open during a deposit: 0 no; 1 neither cash-in nor cash-in end closes it; 2 cash-in "
     L"leaves it open, cash-in end closes it", Saved, OneOf},
    {key::Capabilities, L"CanRejectWhatever", &C::m_bCanRejectWhatever, 1,
     L"the CDM reject command is accepted: 0 after a CDM command only, otherwise it is answered as not ready; "
     L"nonzero at any time", Saved},
    {key::Device, L"SupportCurrencyID", StringValue, L"CNY",
     L"currencies that the device handles, separated by \",\"", kLoadCurrencies, NotLogged},
    {key::Device, L"SupportCurrencyExponent", StringValue, L"0",
     L"decimal exponents of the currencies by position, separated by \",\"; missing ones are 0", kLoadExponents,
     NotLogged},
    {key::Capabilities, L"RejectCountCalcMode", &C::m_dwRejectCountCalcMode, 2,
     L"how the reject count of a cassette is kept: 0 not recorded; 1 only when notes go to the reject cassette; 2 "
     L"always", Saved, OneOf},
    {key::Capabilities, L"CDMRjRtCUCalcMode", &C::m_dwCDMRjRtCUCalcMode, 0,
     L"counting in retract and reject cassettes: 0 by notes (the provider's input); 1 by operations, for retracts "
     L"into the retract cassette; 2 by operations, for the retract and the reject cassette", Saved, OneOf},
    {key::Capabilities, L"UseHWCountMode", &C::m_bUseHWCountMode, 1,
     L"the remaining counts of the device are used: 0 no; nonzero yes", Saved},
    {key::Device, L"SupportMixNumber", StringValue, L"1,2,3",
     L"mix algorithms that are offered to applications, separated by \",\": 1 minimum number of bills; 2 equal "
     L"emptying; 3 maximum number of cash units", kLoadMixNumbers, NotLogged},
    {key::Capabilities, L"TryDenominateMultiValue", &C::m_bTryDenominateMultiValue, 0,
     L"when the mix gives a single denomination, a mix of several is tried: 0 no; nonzero yes", Constructed(1)},
    {key::Capabilities, L"UseNewMixMode", &C::m_dwUseNewMixMode, 0,
     L"mix algorithm: 0 the new one where cassettes of denomination 10 or 20 are present, otherwise the old one; "
     L"nonzero always the new one", Saved},
    {key::Capabilities, L"ActionOfGetSNFailed", &C::m_dwActionOfGetSNFailed, 0,
     L"when reading serial numbers fails: 0 no device fault; 1 fault, cleared by reset or restart; 2 fault, cleared "
     L"by restart only", Saved, OneOf},
    {key::Capabilities, L"MixPriority", &C::m_dwMixPriority, 0,
     L"mix order: 0 a simple sort; nonzero follows the characteristics of the device", Saved},
    {key::Capabilities, L"MixEqualEmptyingEveryTime", &C::m_dwMixEqualEmptyingEveryTime, 0,
     L"the equal-emptying mix levels the remainders: 0 over a period; nonzero on every dispense", Saved},
    {key::Capabilities, L"MixMaxNumberOrUnit", &C::m_dwMixMaxNumberOrUnit, 1,
     L"maximum mix: 0 the most cassettes of different denominations; nonzero the most notes", Saved},
    {key::Capabilities, L"DisCasExtremeCnt", &C::m_dwDisCasExtremeCnt, 3000,
     L"reserve of a dispense cassette, in notes", Saved},
    {kLimit, L"StopCIMIfAllNonMixBoxFullAndHavecyclebox", &C::m_bStopCIMIfAllNonMixBoxFullAndHavecyclebox, 0,
     L"the CIM is disabled when all deposit cassettes but the mixed ones are full and there is a recycle cassette: 0 "
     L"no; nonzero yes", Saved},
    {kLimit, L"StopCIMIfNoInExceptNonValue", &C::m_bStopCIMIfNoInExceptNonValue, 0,
     L"the CIM is disabled when no cassette but the mixed one can take deposits: 0 no; nonzero yes", Saved},
    {key::Capabilities, L"CloseShtBeforeDispense", &C::m_bCloseShtBeforeDispense, 0,
     L"the shutter closes before dispensing: 0 no; nonzero yes", Saved},
    {key::Capabilities, L"DispenseTimeOutReturnNotDispensable", &C::m_dwDispenseTimeOutReturnNotDispensable, 0,
     L"after a dispense time-out: 0 not-dispensable is returned; nonzero it is not", Saved},
    {key::Capabilities, L"OuterShutterCloseTimeOut", &C::m_dwOuterShutterCloseTimeOut, 0,
     L"time-out for closing the outer shutter: 0 that of the application; otherwise this one", Saved},
    {key::Capabilities, L"SendNoteErrorEvent", &C::m_bSendNoteErrorEvent, 0,
     L"note-error events are sent: 0 no; nonzero yes", Saved},
    {key::Capabilities, L"AddCashInCountAtCIMRetract", &C::m_dwAddCashInCountAtCIMRetract, 0,
     L"CIM retracts raise the cash-in count: 0 never; otherwise a bit set of occasions, 0xFF on all"},
    kLogCIMOccasions,
    {key::Capabilities, L"AddCashInCountAtCDMRetract", &C::m_dwAddCashInCountAtCDMRetract, 0,
     L"CDM retracts raise the cash-in count: 0 never; otherwise a bit set of occasions, 0x3FF on all"},
    kLogCDMOccasions,
    {key::Capabilities, L"EnableCasEstimate", &C::m_dwEnableCasEstimate, 0,
     L"the note count of deposit cassettes is estimated: 0 no; nonzero yes", AsSwitch},
    {key::Capabilities, L"EnableRandSpecMix", &C::m_dwEnableRandSpecMix, 0,
     L"random cassette order for dispensing: 0 off; 1 drawn at set-cash-unit-info; 2 drawn at end exchange", OneOf},
    {key::Capabilities, L"RandSpecMixOrder", &C::m_dwRandSpecMixOrder, 0,
     L"dispense order of the cassettes as decimal digits, 1 to 4 standing for the cassettes A to D; 0 becomes 3142 "
     L"where EnableRandSpecMix is on; saved only then", Saved, kMixOrderWhereRandom},
    {key::Capabilities, L"HandlePosNotEmptyInStartExchange", &C::m_dwHandlePosNotEmptyInStartExchange, 0,
     L"slot not empty before start exchange: 0 is ignored, and the notes are retracted at end exchange; nonzero "
     L"position-not-empty is returned"},
    {key::Capabilities, L"KeepOutShtOpenInCashIn", &C::m_dwKeepOutShtOpenInCashIn, 0,
     L"the output shutter stays open during note validation: 0 no; 1 neither cash-in nor cash-in end closes it; 2 "
     L"cash-in leaves it open, cash-in end closes it", OneOf},
    {key::Capabilities, L"MonitorItemsInsertAfterCashInStart", &C::m_bMonitorItemsInsertAfterCashInStart, 0,
     L"after a successful cash-in start, with the shutter closed, the provider watches for inserted notes: 0 no; "
     L"nonzero yes"},
    {key::Capabilities, L"EnableSubDispense", &C::m_bEnableSubDispense, 0,
     L"notes are dispensed in steps: 0 no; nonzero yes"},
    {key::Capabilities, L"SubDispenseCountOfOnce", &C::m_dwSubDispenseCountOfOnce, 100,
     L"notes per step of a stepped dispense"},
    {key::Capabilities, L"RejectTimesWhenSubDispenseFail", &C::m_dwRejectTimesWhenSubDispenseFail, 2,
     L"number of reset-and-retract attempts after a failed step"},
    {kLimit, L"EmptyLimit", &C::m_dwEmptyLimit, 0, L"count at which a cassette is empty", Saved, KeepWhenMissing},
    {kLimit, L"FullLimit", &C::m_dwFullLimit, 0,
     L"count at which a deposit, dispense or recycle cassette is full", Saved, KeepWhenMissing},
    {kLimit, L"MaxLimit", &C::m_dwMaxLimit, 0,
     L"largest note count of a deposit, dispense or recycle cassette", Saved, KeepWhenMissing},
    {kLimit, L"MinLimit", &C::m_dwMinLimit, 0,
     L"smallest note count of a deposit, dispense or recycle cassette", Saved, KeepWhenMissing},
    {kLimit, L"FullLimitOfRetract", &C::m_dwFullLimitOfRetract, 10,
     L"count at which the retract cassette is full", Saved, KeepWhenMissing},
    {kLimit, L"MaxLimitOfRetract", &C::m_dwMaxLimitOfRetract, 0,
     L"largest count of the retract cassette", Saved, KeepWhenMissing},
    {kLimit, L"FullLimitOfReject", &C::m_dwFullLimitOfReject, 10,
     L"count at which the reject cassette is full", Saved, KeepWhenMissing},
    {kLimit, L"MaxLimitOfReject", &C::m_dwMaxLimitOfReject, 0,
     L"largest count of the reject cassette", Saved, KeepWhenMissing},
    {kCassette, L"PhyLog11", &C::m_bPhyLog11, 1,
     L"physical and logical cash units correspond one to one: 0 no; nonzero yes"},
    {kCassette, L"AddCassMode", &C::m_dwAddCassMode, 0,
     L"counts at replenishment: 0x00 automatic, the physical ones where they are not 0, otherwise the logical ones; "
     L"0x01 always the logical ones; 0x02 always the physical ones", Format(L"0x%02X"), OneOf},
    {kCassette, L"StopIfPlugCU", &C::m_dwStopIfPlugCU, 0,
     L"a cassette is removed or inserted outside replenishment, bit set: 0x01 a CDM cassette disables dispensing; "
     L"0x02 a CIM cassette disables deposits; 0x80 newly inserted cassettes are detected; 0x100 the cassette becomes "
     L"INOP as well", Saved},
    {kCassette, L"RecoverCUStOnReset", &C::m_dwRecoverCUStOnReset, 3,
     L"cassette states that a reset restores, bit set: 0x0001 manipulated; 0x0002 inoperative; 0x0010 cassettes "
     L"never replenished are not put INOP; 0x0100 an application reset lifts or restores a separation close; 0x0200 "
     L"the same for the collection close of single-deposit and recycle cassettes; 0x0400 the same for the retract "
     L"cassette; the low byte is cleared where that of StopIfPlugCU is not 0", Saved, Format(L"0x%04X"),
     kRecoverUnlessPlugged},
    {kCassette, L"CasBothVisible", &C::m_dwCasBothVisible, 0,
     L"deposit and dispense cassettes are visible to both CDM and CIM, each showing the other's as recycle cassettes "
     L"in state MISSING: 0 no; 1 yes"},
    {kCassette, L"RearPosOfCasRtRj", &C::m_dwRearPosOfCasRtRj, 0,
     L"retract and reject cassettes stand at the end of the list: 0 no; 1 yes"},
    {kCassette, L"DelMissCUOnEndExchange", &C::m_dwDelMissCUOnEndExchange, 1,
     L"end exchange deletes cash units that are not present: 0 no; 1 yes"},
    {kCassette, L"CUState2Ok", &C::m_bCUState2Ok, 0, L"CDM cash-unit states are reported as OK: 0 no; nonzero yes"},
    {kCassette, L"InCUEmptyWhenLogicalEmpty", &C::m_bInCUEmptyWhenLogicalEmpty, 0,
     L"an input cash unit that is logically empty reports empty: 0 no; nonzero yes", Saved},
    {kCassette, L"OutCUEmptyWhenLogicalEmpty", &C::m_bOutCUEmptyWhenLogicalEmpty, 1,
     L"an output cash unit that is empty logically but not physically reports empty: 0 no; nonzero yes", Saved},
    {kCassette, L"ReportFullOfNoMixCasInCasAndRecycleCas", &C::m_bReportFullOfNoMixCasInCasAndRecycleCas, 1,
     L"full deposit cassettes other than the mixed ones, and full recycle cassettes, are reported: 0 no; nonzero yes",
     Saved},
    {kCassette, L"OptAcceptorStaWhenAllNonMixBoxFullAndHavecyclebox",
     &C::m_bOptAcceptorStaWhenAllNonMixBoxFullAndHavecyclebox, 0,
     L"the acceptor status is adjusted when all cassettes but the mixed ones are full and there is a recycle "
     L"cassette: 0 no; nonzero yes", Saved},
    {kCassette, L"AdjustCassStatusByType", &C::m_dwAdjustCassStatusByType, 0x00010001,
     L"cassette states are corrected by their use: high word input cassettes, low word output cassettes, each 0 no; "
     L"nonzero yes", Format(L"%08X")},
    {key::Capabilities, L"RejectPosition", &C::m_dwRejectPosition, 2,
     L"where rejected notes go: 0 the intermediate stacker; 1 the slot; 2 either", Saved, OneOf},
    {key::Capabilities, L"RejectWhenDispenseFail", &C::m_bRejectWhenDispenseFail, 1,
     L"notes are rejected automatically when picking fails: 0 no; nonzero yes", Saved},
    {key::Capabilities, L"RetractWhenPresentFail", &C::m_dwRetractWhenPresentFail, 1,
     L"after a failed present: 0 no retract; 1 into the retract cassette; other numbers into the reject cassette "
     L"where opening the shutter failed", Saved},
    {key::Capabilities, L"DispenseAgain", &C::m_bDispenseAgain, 0,
     L"after a pick failure and a successful reset, the amount is mixed a second time: 0 no; nonzero yes", Saved},
    {key::Capabilities, L"ShakeOuterShtBeforeDispense", &C::m_dwShakeOuterShtBeforeDispense, 0,
     L"shutters are shaken, bit set: 0x01 the outer one in open-shutter; 0x02 the outer one in dispense; 0x04 the "
     L"inner one in open-shutter; 0x08 the inner one in dispense", Saved, Format(L"0x%04X")},
    {key::Capabilities, L"BillTakenCheckTimeOut", &C::m_dwBillTakenCheckTimeOut, 120000,
     L"how long the slot is watched for taken notes after dispensing, in ms", Saved},
    {key::Capabilities, L"ApCanRetract2MixCasIn", &C::m_dwApCanRetract2MixCasIn, 0,
     L"the application can retract into the mixed deposit cassette: 0 no; 1 yes"},
    {key::Capabilities, L"ResetWhenCashInEndFail", &C::m_bResetWhenCashInEndFail, 0,
     L"the device is reset automatically when cash-in end fails: 0 no; nonzero yes", Saved},
    {key::Capabilities, L"ResetWhenCashInActived", &C::m_bResetWhenCashInActived, 1,
     L"a reset is allowed while a cash-in is active: 0 no; nonzero yes", Saved},
    {key::Capabilities, L"WatchWhenCashIn", &C::m_bWatchWhenCashIn, 0,
     L"before cash-in the framework opens the shutter, watches insertion and closes: 0 no; nonzero yes", Saved},
    {key::Capabilities, L"PostItemInsertEventInVerify", &C::m_bPostItemInsertEventInVerify, 0,
     L"insertion events are reported during validation: 0 no; nonzero yes", Saved},
    {key::Capabilities, L"AllowRollbackWhenPosNotEmpty", &C::m_bAllowRollbackWhenPosNotEmpty, 0,
     L"cash-in rollback is allowed while the slot is not empty: 0 no; nonzero yes", Saved},
    {key::Capabilities, L"HaveConfirmBtnForKalPlatform", &C::m_bHaveConfirmBtnForKalPlatform, 0,
     L"on the KAL platform (0 elsewhere), the application has a confirm key and no items-inserted event is posted: 0 "
     L"no; nonzero yes", Saved},
    {key::Capabilities, L"RetTooManyItemsIfPossibleInVerify", &C::m_bRetTooManyItemsIfPossibleInVerify, 0,
     L"validation may return the too-many-items error: 0 no; nonzero yes", Saved},
    {key::Capabilities, L"UseFixDep", &C::m_dwUseFixDep, 0,
     L"deposit of a fixed amount: 0 off; 1 parameters through the API; 2 parameters from the registry; 3 through the "
     L"set-cash-in-limit command", Saved, OneOf},
    {key::Capabilities, L"PostCIMItemsInsertTakenEventOnlyOnce", &C::m_bPostCIMItemsInsertTakenEventOnlyOnce, 0,
     L"after the CIM opens its shutter, the taken or inserted event is posted only once: 0 no; nonzero yes", Saved},
    {key::Capabilities, L"RunAPCloseShtOnCashInActive", &C::m_dwRunAPCloseShtOnCashInActive, 1,
     L"during a deposit the application's close-shutter request is: 0 ignored; 1 executed; 2 executed, and a failure "
     L"returns success", OneOf},
    {key::Capabilities, L"RestrictCountOfDispense", &C::m_dwRestrictCountOfDispense, 100,
     L"most notes in one dispense", Saved},
    {key::Capabilities, L"PostCDMItemsTakenEventAfterShtCls", &C::m_bPostCDMItemsTakenEventAfterShtCls, 1,
     L"the items-taken event after present is posted: 0 before the shutter closes; nonzero after", Saved},
    {key::Capabilities, L"RestrictCountOfDeposit", &C::m_dwRestrictCountOfDeposit, 100,
     L"most notes in one deposit", Saved},
    {key::Capabilities, L"RestrictAmountOfDeposit", &C::m_dwRestrictAmountOfDeposit, 10000,
     L"largest amount of one deposit", Saved},
    {key::Capabilities, L"RestrictCountOfReject", &C::m_dwRestrictCountOfReject, 0,
     L"most rejected notes accumulated in one deposit: 0 the reject count does not tell whether the reject area is "
     L"full"},
    kLoadNoteTypes,
    kOpenSNRData,
    Step<&C::m_sBillSNRegInfo>(kLoadRecord<&C::m_sBillSNRegInfo>, Rows<kBillSNRows>),
    Step<&C::m_sBillFSNRegInfo>(kLoadRecord<&C::m_sBillFSNRegInfo>, Rows<kBillFSNRows>),
    Step<&C::m_sBillBLRegInfo>(kLoadRecord<&C::m_sBillBLRegInfo>, Rows<kBillBLRows>),
    Step<&C::m_sBillFAIRegInfo>(kLoadRecord<&C::m_sBillFAIRegInfo>, Rows<kBillFAIRows>),
    {key::Capabilities, L"RetractBillsWhenSPStart", &C::m_dwRetractBillsWhenSPStart, 1,
     L"notes are retracted when the provider starts: 0 no; 1 yes", Saved},
    {key::Capabilities, L"RtnDevErrorOnPosNotEmptyOfCIS", &C::m_dwRtnDevErrorOnPosNotEmptyOfCIS, 0,
     L"cash-in start turns position-not-empty into a hardware error: 0 no; 1 yes"},
    {key::Capabilities, L"CheckCUOnEndExchange", &C::m_dwCheckCUOnEndExchange, 0,
     L"cassettes that must be present at the end of replenishment, which otherwise fails with a cash-unit error, bit "
     L"set: 0x01 the CDM checks the retract cassette; 0x02 the CDM checks the reject cassette; 0x10 the CIM checks "
     L"the retract cassette; 0x20 the CIM checks the mixed cassette; 0x40 the CIM checks the reject cassette of the "
     L"dispenser", Format(L"0x%02X")},
    {key::Capabilities, L"CDMShutterControlCap", &C::m_bCDMShutterControlCap, 0,
     L"the CDM controls its shutter automatically: 0 no; nonzero yes", Saved, Format(L"%02d")},
    {key::Capabilities, L"AppBlackSymbol", &C::m_chAppBlackSymbol, L"*",
     L"wildcard character in the black list of the application", Saved},
    {key::Capabilities, L"DevBlackSymbol", &C::m_chDevBlackSymbol, L"*",
     L"wildcard character in the black list of the device", Saved},
    {key::Capabilities, L"DelExtraStatus", &C::m_strDelExtraStatus, L"",
     L"entries that are deleted from the extended status", Saved},
    {key::Capabilities, L"NeedCheckPositionStatusWhenCashInEnd", &C::m_bNeedCheckPositionStatusWhenCashInEnd, 1,
     L"the input and output positions are checked after cash-in end: 0 no; nonzero yes"},
    {key::Capabilities, L"dwPosOrderStyleOfCIMStatus", &C::m_dwPosOrderStyleOfCIMStatus, 0,
     L"positions in the CIM status: 0 in the order of the provider; nonzero position 0 is the input and position 1 "
     L"the output"},
    {key::Capabilities, L"UseVirtualEscrow", &C::m_bUseVirtualEscrow, 0,
     L"a virtual escrow is used when the device has none: 0 no; nonzero yes"},
    {kReplenish, L"EnableReplenish", &C::m_dwEnableReplenish, 0,
     L"automatic replenishment: high word, 1 automatic replenishment and clear-out; low word, bit set, 1 automatic "
     L"counting of the cassettes that the application lists, 2 automatic counting of all countable cassettes when it "
     L"lists none", Saved, NotLogged},
    kLogReplenishWords,
    {kReplenish, L"CasTypeCanCount", &C::m_dwCasTypeCanCount, 0,
     L"cassettes that may be counted: 0 those with a denomination (recycle, single deposit, single dispense); 1 "
     L"recycle only", Saved, OneOf},
    {kReplenish, L"CasStatusCannotCount", &C::m_dwCasStatusCannotCount, 31,
     L"states that forbid counting, bit set: bit 0 INOP; bit 1 manipulated; bit 2 MISSING; bit 3 no value; bit 4 no "
     L"reference", Saved},
    {key::Capabilities, L"ForceDeposite", &C::m_dwForceDeposite, 0,
     L"forced deposit: 0 off; 1 parameters through the API; 2 parameters from the registry", OneOf},
    {key::Capabilities, L"SendItemPresentedEventAfterPresent", &C::m_dwSendItemPresentedEventAfterPresent, 0,
     L"the presented event is posted after present: 0 no; nonzero yes"},
    {key::Capabilities, L"MonitorPosStatAfterCDMOpenSht", &C::m_dwMonitorPosStatAfterCDMOpenSht, 0,
     L"the slot is watched after a CDM open-shutter: 0 no; nonzero yes"},
    {key::Capabilities, L"CountStyleOfRefuseNumberInCashInStatus", &C::m_dwCountStyleOfRefuseNumberInCashInStatus, 0,
     L"refused notes in the cash-in status: 0 accumulated over the validations; nonzero of the last validation"},
};

constexpr Setting kNoteTypeCount{
    kNoteTypes, L"Count", DwordValue, 0, L"number of note types, whose subkeys are numbered from 1"};
// In the order of reading.
constexpr Setting kNoteType[] = {
    {kNoteTypeOf, L"NoteID",     DwordValue,  0,   L"note ID, the low 16 bits", AsWord},
    {kNoteTypeOf, L"CurrencyID", StringValue, L"", L"currency of the note, exactly 3 characters"},
    {kNoteTypeOf, L"Value",      DwordValue,  0,   L"denomination"},
    {kNoteTypeOf, L"Release",    DwordValue,  0,   L"release of the note, the low 16 bits", AsWord},
};
constexpr Setting kNoteTypeConfig{kNoteTypeOf, L"Config", DwordValue, 0, L"the note is accepted: 0 no; nonzero yes"};
constexpr OperationSettings kOperations[] = {
    {L"GetBankNoteTypes", L"",                   Rows<kNoteTypeCount>},
    {L"GetBankNoteTypes", L"",                   Rows<kNoteType>},
    {L"GetBankNoteTypes", L"ConfigureNoteTypes", Rows<kNoteTypeConfig>},
};
// clang-format on

// Save writes in two parts, the first by key. The note types and the serial-number records come between them;
// RandSpecMixOrder comes last, and only where it is in use.
constexpr Key kFirstKeys[] = {key::Capabilities, kLimit, kCassette};
constexpr const wchar_t* kSavedLast[] = {L"RetractBillsWhenSPStart", L"AppBlackSymbol",  L"DevBlackSymbol",
                                         L"EnableReplenish",         L"CasTypeCanCount", L"CasStatusCannotCount",
                                         L"RandSpecMixOrder"};
constexpr auto kLastOrder = SaveOrder<kSettings, kSavedLast, false>;
constexpr auto kFirstOrder = SaveOrderByKey<kSettings, kFirstKeys, kSavedLast>;

// ---- note types ----

// What is stored of the note types. Objects live within a scope, so that they see one state of the registry.
class NoteTypeKeys
{
  public:
    explicit NoteTypeKeys(const C& c) : m_root(std::wstring(kDeviceRoot) + c.GetExeDllMother(1, nullptr).Std() + L'\\')
    {}

    bool Query(const Setting& row, DWORD dwNumber, DWORD& dwValue) const
    {
        return C::QueryValue(dwValue, CString(row.name), L"%s", PathOf(row, dwNumber)) != 0;
    }
    bool Query(const Setting& row, DWORD dwNumber, CString& strValue) const
    {
        return C::QueryValue(strValue, CString(row.name), L"%s", PathOf(row, dwNumber)) != 0;
    }
    void Set(const Setting& row, DWORD dwNumber, DWORD dwValue) const
    {
        C::SetValue(dwValue, CString(row.name), L"%s", PathOf(row, dwNumber));
    }
    // How many subkeys there should be. False when the registry could not be asked, which says nothing about that.
    bool QueryCount(const ReadScope& scope, DWORD& dwCount) const
    {
        dwCount = 0;
        return Query(kNoteTypeCount, 0, dwCount) || !scope->Failure();
    }

  private:
    std::wstring PathOf(const Setting& row, DWORD dwNumber) const
    {
        const Iteration note{nullptr, dwNumber, 0};
        return m_root + ForIteration(row.key.subkey, &note);
    }

    std::wstring m_root;
};

bool ReadNoteType(const NoteTypeKeys& keys, DWORD dwNumber, _wfs_cim_note_type& type)
{
    DWORD dwNoteID = 0;
    CString strCurrency;
    DWORD dwValue = 0;
    DWORD dwRelease = 0;
    DWORD dwConfig = 0;
    if (!keys.Query(Rows<kNoteType>[0], dwNumber, dwNoteID) || !keys.Query(Rows<kNoteType>[1], dwNumber, strCurrency) ||
        !keys.Query(Rows<kNoteType>[2], dwNumber, dwValue) || !keys.Query(Rows<kNoteType>[3], dwNumber, dwRelease) ||
        !keys.Query(kNoteTypeConfig, dwNumber, dwConfig)) {
        return false;
    }
    const std::string currency = WideToNarrow(strCurrency.View());
    if (strCurrency.GetLength() != 3 || currency.size() != sizeof type.cCurrencyID) {
        return false;
    }
    type.usNoteID = LOWORD(dwNoteID);
    std::memcpy(type.cCurrencyID, currency.data(), sizeof type.cCurrencyID);
    type.ulValues = dwValue;
    type.usRelease = LOWORD(dwRelease);
    type.bConfigured = dwConfig != 0 ? TRUE : FALSE;
    return true;
}

// A note type of the list is an iteration of its settings, whose number says where it is stored; its note ID tells it
// from the others.
Iteration NoteTypeAt(DWORD dwNumber, WORD usNoteID)
{
    return {nullptr, dwNumber, usNoteID};
}

// `by` is the Loading or the Saving that is to know what the object holds.
template <class By>
void RememberNoteTypes(const C& c, By& by)
{
    DWORD dwNumber = 0;
    for (const auto& type : c.m_arNoteType) {
        by.Remember(kNoteTypeConfig, NoteTypeAt(++dwNumber, type.usNoteID), static_cast<DWORD>(type.bConfigured));
    }
}

// Calls `write(iteration, value)` for each stored note type that `types` has, with whether it is accepted.
template <class F>
LONG WriteNoteTypes(C& c, const C::NoteTypes& types, F write)
{
    WriteScope scope;
    const ReadScope reading;
    const NoteTypeKeys keys(c);
    DWORD dwCount = 0;
    if (!keys.QueryCount(reading, dwCount)) {
        return WFS_ERR_INTERNAL_ERROR;
    }
    if (dwCount == 0) {
        return WFS_ERR_UNSUPP_DATA;
    }
    for (DWORD dwNumber = 1; dwNumber <= dwCount; ++dwNumber) {
        DWORD dwNoteID = 0;
        if (!keys.Query(Rows<kNoteType>[0], dwNumber, dwNoteID)) {
            return WFS_ERR_INTERNAL_ERROR;
        }
        const auto type = std::find_if(types.begin(), types.end(),
                                       [&](const _wfs_cim_note_type& each) { return each.usNoteID == dwNoteID; });
        if (type != types.end()) {
            write(NoteTypeAt(dwNumber, type->usNoteID), static_cast<DWORD>(type->bConfigured));
        }
    }
    // The member shows what the registry holds, also when it could not be written.
    const bool bWritten = scope.Commit();
    c.GetBankNoteTypes(c.m_arNoteType);
    if (bWritten && GetSavePolicy() == SavePolicy::OwnChanges) {
        Saving saving(c);
        RememberNoteTypes(c, saving);
    }
    return bWritten ? WFS_SUCCESS : WFS_ERR_INTERNAL_ERROR;
}

} // namespace

const Table& CCRMRegInfo::Settings() noexcept
{
    static const Table table{L"CCRMRegInfo", &CRegInfo::Settings, L"CRM",  Rows<kSettings>,
                             kFirstOrder,    kOperations,         nullptr, false};
    return table;
}

CCRMRegInfo::CCRMRegInfo(const CString& strName, bool bPhysicalName) : CRegInfo(strName, bPhysicalName)
{
    Construct(*this, Rows<kSettings>);
}

CCRMRegInfo::~CCRMRegInfo() = default;

bool CCRMRegInfo::Load(CLog* pLog)
{
    Loading loading(*this, pLog);
    const bool bResult = CRegInfo::Load(pLog);
    return loading.Read(Settings()) && bResult;
}

void CCRMRegInfo::Save()
{
    Saving saving(*this);
    saving.Write(Settings());
    WriteNoteTypes(*this, m_arNoteType, [&saving](const Iteration& noteType, DWORD dwConfig) {
        saving.Put(kNoteTypeConfig, noteType, dwConfig);
    });
    if (!OpenSNRData(*this)) {
        return;
    }
    const auto key = m_keySNRData.Get();
    m_sBillSNRegInfo.Save(key);
    m_sBillFSNRegInfo.Save(key);
    m_sBillBLRegInfo.Save(key);
    m_sBillFAIRegInfo.Save(key);
    const auto last = kLastOrder();
    saving.Write(last.first(last.size() - (m_dwEnableRandSpecMix != 0 ? 0 : 1)));
}

LONG CCRMRegInfo::GetNoteIDArray(CArray<WORD, WORD>& ids) const
{
    ids.RemoveAll();
    const ReadScope scope;
    const NoteTypeKeys keys(*this);
    DWORD dwCount = 0;
    if (!keys.QueryCount(scope, dwCount)) {
        return WFS_ERR_INTERNAL_ERROR;
    }
    for (DWORD i = 0; i < dwCount; ++i) {
        DWORD dwNoteID = 0;
        if (!keys.Query(Rows<kNoteType>[0], i + 1, dwNoteID)) {
            return WFS_ERR_INTERNAL_ERROR;
        }
        ids.Add(LOWORD(dwNoteID));
    }
    return WFS_SUCCESS;
}

bool CCRMRegInfo::IsValidNoteID(WORD id) const
{
    CArray<WORD, WORD> ids;
    GetNoteIDArray(ids);
    return std::find(ids.begin(), ids.end(), id) != ids.end();
}

WORD CCRMRegInfo::GetBankNoteBy(WORD value) const
{
    NoteTypes types;
    if (GetBankNoteTypes(types) != WFS_SUCCESS) {
        return 0;
    }
    for (const auto& type : types) {
        if (type.ulValues == value) {
            return type.usNoteID;
        }
    }
    return 0;
}

LONG CCRMRegInfo::GetBankNoteTypes(NoteTypes& types) const
{
    types.RemoveAll();
    const ReadScope scope;
    const NoteTypeKeys keys(*this);
    DWORD dwCount = 0;
    if (!keys.QueryCount(scope, dwCount)) {
        return WFS_ERR_INTERNAL_ERROR;
    }
    for (DWORD i = 0; i < dwCount; ++i) {
        _wfs_cim_note_type type{};
        if (!ReadNoteType(keys, i + 1, type)) {
            return WFS_ERR_INTERNAL_ERROR;
        }
        types.Add(type);
    }
    return WFS_SUCCESS;
}

LONG CCRMRegInfo::ConfigureNoteTypes(const NoteTypes& types)
{
    const NoteTypeKeys keys(*this);
    return WriteNoteTypes(*this, types, [&keys](const Iteration& noteType, DWORD dwConfig) {
        keys.Set(kNoteTypeConfig, noteType.number, dwConfig);
    });
}

bool CCRMRegInfo::NeedAddCashInCountAtCIM(int nOccasion) const
{
    return (static_cast<DWORD>(nOccasion) & m_dwAddCashInCountAtCIMRetract) != 0;
}

bool CCRMRegInfo::NeedAddCashInCountAtCDM(int nOccasion) const
{
    return (static_cast<DWORD>(nOccasion) & m_dwAddCashInCountAtCDMRetract) != 0;
}

WQSPCFG_CATALOGUE_ENTRY(CCRMRegInfo)
