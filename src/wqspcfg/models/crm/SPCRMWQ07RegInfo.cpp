#include "wqspcfg/models/crm/SPCRMWQ07RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/VtmShutter.h"
#include "wqspcfg/parts/meanings/CRM.h"

using namespace wqspcfg;
using C = CSPCRMWQ07RegInfo;

namespace {

constexpr Key kCassette = key::Below(L"Cassette");
constexpr Key kHopper = key::Below(L"Cassette\\Hopper");
constexpr Key kHopperE = key::Below(L"Cassette\\Hopper\\E");
constexpr Key kHopperF = key::Below(L"Cassette\\Hopper\\F");
constexpr Key kShutter = key::Below(L"WQShutter");
constexpr Key kReplenish = key::Below(L"REPLENISH");
constexpr Key kSlot = key::Below(L"Cassette\\Hopper\\%c");

constexpr const wchar_t* kSlots[] = {L"A", L"B", L"C", L"D", L"E", L"F", L"R"};
constexpr DWORD kTypes[] = {0x00040030, 0x00040030, 0x00040030, 0x40, 0xF0, 0xF0, 0};

// clang-format off
constexpr Setting kSlotRows[] = {
    {kSlot, L"Type",         Element<&C::m_arSlot, &tagCassetteSlot::dwType>,         0, meaning::kSlotType, Saved, PerIteration(kTypes), Format(L"0x%08X"), Label(L"%c.Type")},
    {kSlot, L"CasFull",      Element<&C::m_arSlot, &tagCassetteSlot::dwCasFull>,      2, meaning::kSlotCasFull, Saved, Label(L"%c.CasFull")},
    {kSlot, L"CasNearEmpty", Element<&C::m_arSlot, &tagCassetteSlot::dwCasNearEmpty>, 0, meaning::kSlotCasNearEmpty, Saved, Label(L"%c.CasNearEmpty")},
};

constexpr Setting kSettings[] = {
    {key::Capabilities, L"ActionOfInnerShutterCantCloseInCIM", &C::m_dwActionOfInnerShutterCantCloseInCIM, 1,    meaning::kInnerShutterCantClose, Saved},
    {key::Capabilities, L"HwInitCount",                        &C::m_dwHwInitCount,                        0,    meaning::kHwInitCount, Saved},
    {key::Capabilities, L"RollbackDelayTimeout",               &C::m_dwRollbackDelayTimeout,               0,    meaning::kRollbackDelayTimeout, Saved},
    {key::Capabilities, L"TryRetract2CasE",                    &C::m_bTryRetract2CasE,                     0,    meaning::kTryRetract2CasE, Saved},
    {key::Capabilities, L"ForceRetract2CasE",                  &C::m_bForceRetract2CasE,                   0,    meaning::kForceRetract2CasE, Saved},
    {key::Capabilities, L"SetPOSNULLPosition",                 &C::m_dwSetPOSNULLPosition,                 0,    meaning::kSetPOSNULLPosition, Saved, OneOf},
    {key::Capabilities, L"StoreFirstCollect",                  &C::m_dwStoreFirstCollect,                  0,    meaning::kStoreFirstCollect, Saved, OneOf},
    {key::Capabilities, L"DispenseFirstDepart",                &C::m_dwDispenseFirstDepart,                0,    meaning::kDispenseFirstDepart, Saved, OneOf},
    {key::IdleInterval, L"TryCloseOutSht",                     &C::m_dwTryCloseOutSht,                     3000, meaning::kTryCloseOutSht, Saved},
    {kCassette,         L"DepartClose",                        &C::m_bDepartClose,                         0,    meaning::kDepartClose, Saved},
    {kCassette,         L"CollectClose",                       &C::m_dwCollectClose,                       0,    meaning::kCollectClose, Saved, OneOf},
    {kHopper,           L"CasTypeFollowSlot",                  &C::m_dwCasTypeFollowSlot,                  1,    meaning::kCasTypeFollowSlot, Saved, OneOf},
    {kHopper,           L"AddCasDataType",                     &C::m_dwAddCasDataType,                     0,    meaning::kAddCasDataType, Saved, OneOf},
    {kHopper,           L"UnitPhyPosName",                     &C::m_dwUnitPhyPosName,                     0,    meaning::kUnitPhyPosName, Saved, OneOf},
    {kHopperF,          L"UseCassetteFAndNotSupportRtract",    &C::m_bUseCassetteFAndNotSupportRtract,     0,    meaning::kUseCassetteF, Saved},
    {kHopperE,          L"UseCassetteEAsRJCAS",                &C::m_bUseCassetteEAsRJCAS,                 0,    meaning::kUseCassetteE, Saved},
    Repeat(kSlots, kSlotRows),
    {key::Capabilities, L"OutShutterType",                     &C::m_dwOutShutterType,                     0,   meaning::kOutShutterType, Saved},
    {key::Comm,         L"VtmOutShtPort",                      &C::m_dwVtmOutShtPort,                      3,   meaning::kVtmOutShtPort, Saved},
    {key::Comm,         L"VtmOutShtCtrlIndex",                 &C::m_dwVtmOutShtCtrlIndex,                 2,   meaning::kVtmOutShtCtrlIndex, Saved, Range(0, 15), vtm::kControlIndex<C>},
    {key::Comm,         L"VtmOutShtSafeDoorIndex",             &C::m_dwVtmOutShtSafeDoorIndex,             3,   meaning::kVtmOutShtSafeDoorIndex, Saved, Range(0, 7), vtm::kSafeDoorIndex<C>},
    {key::Comm,         L"VtmOutShtStIndex",                   &C::m_dwVtmOutShtStIndex,                   2,   meaning::kVtmOutShtStIndex, Saved, Range(0, 7), vtm::kStatusIndex<C>},
    {key::Comm,         L"VtmPolOfSafeDoor",                   &C::m_dwVtmPolOfSafeDoor,                   0,   meaning::kVtmPolOfSafeDoor, Saved, OneOf},
    {key::Capabilities, L"InitType",                           &C::m_dwInitType,                           0,   meaning::kInitType, Saved, OneOf},
    {kShutter,          L"WQVtmOutShtPort",                    &C::m_dwWQVtmOutShtPort,                    1,   meaning::kWQVtmOutShtPort, Saved},
    {key::Capabilities, L"MaxItemsOfEscrow",                   &C::m_dwMaxItemsOfEscrow,                   200, meaning::kMaxItemsOfEscrow, Saved},
    {key::Capabilities, L"UseRestrictAmountOfDepositByAPP",    &C::m_bUseRestrictAmountOfDepositByAPP,     0,   meaning::kUseRestrictAmountByAPP, Saved},
    {key::Capabilities, L"DisableCIMRetract",                  &C::m_bDisableCIMRetract,                   0,   meaning::kDisableCIMRetract, Saved},
    {key::Capabilities, L"DisableCDMRetract",                  &C::m_bDisableCDMRetract,                   0,   meaning::kDisableCDMRetract, Saved},
    {key::Capabilities, L"OutShutterLockType",                 &C::m_dwOutShutterLockType,                 0,   meaning::kOutShutterLockType, Saved},
    {key::Capabilities, L"RetractCashOfShutterIn",             &C::m_bRetractCashOfShutterIn,              0,   meaning::kRetractCashOfShutterIn, Saved},
    {key::Capabilities, L"EnableAccountWhenVerifyFailed",      &C::m_bEnableAccountWhenVerifyFailed,       0,   meaning::kEnableAccountWhenVerifyFailed, Saved},
    {kReplenish,        L"ContainerCanAsCashInOut",            &C::m_dwContainerCanAsCashInOut,            0,   meaning::kContainerCanAsCashInOut, Saved, OneOf},
    {kReplenish,        L"CanRejectCash",                      &C::m_dwCanRejectCash,                      3,   meaning::kCanRejectCash, Saved},
    {kReplenish,        L"RetryWhenDepartBad",                 &C::m_bRetryWhenDepartBad,                  0,   meaning::kRetryWhenDepartBad, Saved},
    {kReplenish,        L"ExtraMoveTimesWhenReceiveNotEnough", &C::m_dwExtraMoveTimesWhenReceiveNotEnough, 2,   meaning::kExtraMoveTimes, Saved},
    {kReplenish,        L"HandleBillNotMatchCasValues",        &C::m_dwHandleBillNotMatchCasValues,        1,   meaning::kHandleBillNotMatch, Saved, OneOf},
    {key::Capabilities, L"RtNoItemIfNoCashAccepedInCIE",       &C::m_bRtNoItemIfNoCashAccepedInCIE,        0,   meaning::kRtNoItemIfNoCash, Saved},
    {key::Capabilities, L"CheckEmptyOnOutSht",                 &C::m_bCheckEmptyOnOutSht,                  1,   meaning::kCheckEmptyOnOutSht, Saved},
    {key::Capabilities, L"RestrictDepCntPathByAP",             &C::m_strRestrictDepCntPathByAP,            L"", meaning::kRestrictDepCntPath, Saved},
    {key::Capabilities, L"RestrictDepCntKeyByAP",              &C::m_strRestrictDepCntKeyByAP,             L"", meaning::kRestrictDepCntKey, Saved},
    {key::Capabilities, L"RestrictDepAmtPathByAP",             &C::m_strRestrictDepAmtPathByAP,            L"", meaning::kRestrictDepAmtPath, Saved},
    {key::Capabilities, L"RestrictDepAmtKeyByAP",              &C::m_strRestrictDepAmtKeyByAP,             L"", meaning::kRestrictDepAmtKey, Saved},
    {key::Capabilities, L"RetractWhenResetInputNull",          &C::m_bRetractWhenResetInputNull,           0,   meaning::kRetractWhenResetInputNull, Saved},
    {key::Capabilities, L"HandleDepRestrict0ByAp",             &C::m_dwHandleDepRestrict0ByAp,             0,   meaning::kHandleDepRestrict0, Saved, OneOf},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSPCRMWQ07RegInfo, CCRMRegInfo, kSettings)
