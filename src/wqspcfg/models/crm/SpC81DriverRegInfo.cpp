#include "wqspcfg/models/crm/SpC81DriverRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/VtmShutter.h"
#include "wqspcfg/parts/meanings/CRM.h"

using namespace wqspcfg;
using C = CSpC81DriverRegInfo;

namespace {

constexpr Key kCassette = key::Below(L"Cassette");
constexpr Key kHopper = key::Below(L"Cassette\\Hopper");
constexpr Key kHopperE = key::Below(L"Cassette\\Hopper\\E");
constexpr Key kHopperR = key::Below(L"Cassette\\Hopper\\R");
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
    {key::Capabilities, L"StoreFirstCollect",                  &C::m_dwStoreFirstCollect,                  0,    meaning::kStoreFirstCollect, Saved, OneOf},
    {key::Capabilities, L"DispenseFirstDepart",                &C::m_dwDispenseFirstDepart,                0,    meaning::kDispenseFirstDepart, Saved, OneOf},
    {key::IdleInterval, L"TryCloseOutSht",                     &C::m_dwTryCloseOutSht,                     3000, meaning::kTryCloseOutSht, Saved},
    {kCassette,         L"DepartClose",                        &C::m_bDepartClose,                         0,    meaning::kDepartClose, Saved},
    {kCassette,         L"CollectClose",                       &C::m_dwCollectClose,                       0,    meaning::kCollectClose, Saved, OneOf},
    {kHopper,           L"CasTypeFollowSlot",                  &C::m_dwCasTypeFollowSlot,                  1,    meaning::kCasTypeFollowSlot, Saved, OneOf},
    {kHopper,           L"UnitPhyPosName",                     &C::m_dwUnitPhyPosName,                     0,    meaning::kUnitPhyPosName, Saved, OneOf},
    {kHopperR,          L"UseCassetteR",                       &C::m_bUseCassetteR,                        0,    L"cassette R is used: 0 no; nonzero yes", Saved},
    {kHopperE,          L"UseCassetteEAsRJCAS",                &C::m_bUseCassetteEAsRJCAS,                 0,    meaning::kUseCassetteE, Saved},
    Repeat(kSlots, kSlotRows),
    {key::Capabilities, L"OutShutterType",                     &C::m_dwOutShutterType,                     0,   meaning::kOutShutterType, Saved},
    {key::Comm,         L"VtmOutShtPort",                      &C::m_dwVtmOutShtPort,                      3,   meaning::kVtmOutShtPort, Saved},
    {key::Comm,         L"VtmOutShtCtrlIndex",                 &C::m_dwVtmOutShtCtrlIndex,                 2,   meaning::kVtmOutShtCtrlIndex, Saved, Range(0, 15), vtm::kControlIndex<C>},
    {key::Comm,         L"VtmOutShtSafeDoorIndex",             &C::m_dwVtmOutShtSafeDoorIndex,             3,   meaning::kVtmOutShtSafeDoorIndex, Saved, Range(0, 7), vtm::kSafeDoorIndex<C>},
    {key::Comm,         L"VtmOutShtStIndex",                   &C::m_dwVtmOutShtStIndex,                   2,   meaning::kVtmOutShtStIndex, Saved, Range(0, 7), vtm::kStatusIndex<C>},
    {key::Capabilities, L"InitType",                           &C::m_dwInitType,                           0,   meaning::kInitType, Saved, OneOf},
    {kShutter,          L"WQVtmOutShtPort",                    &C::m_dwWQVtmOutShtPort,                    1,   meaning::kWQVtmOutShtPort, Saved},
    {kCassette,         L"UDCID",                              &C::m_dwUDCID,                              0,   L"UDCID of the mechanism", Saved},
    {kCassette,         L"ODCID",                              &C::m_dwODCID,                              0,   L"ODCID of the mechanism", Saved},
    {kCassette,         L"LEGCTime",                           &C::m_dwLEGCTime,                           0,   L"LEGC time", Saved},
    {kCassette,         L"LEGCPol",                            &C::m_dwLEGCPol,                            0,   L"LEGC policy", Saved},
    {key::Capabilities, L"DLIFilePath",                        &C::m_strDLIFilePath,                       L"", L"path of the device-life information file", Saved},
    {key::Capabilities, L"BeepFilePath",                       &C::m_strBeepFilePath,                      L"", L"path of the sound file that is played when a module closes", Saved},
    {key::Capabilities, L"ModelCloseBeepPolicy",               &C::m_dwModelCloseBeepPolicy,               0,   L"modules whose closing plays the sound of BeepFilePath, bit set: 0x0001 upper unit; 0x0002 lower unit; 0x0004 to 0x0040 cassettes A to E; 0x0080 cassette R; 0x0100 cassette F; 0x0200 note validator", Saved, Format(L"%04X")},
    {kReplenish,        L"ContainerCanAsCashInOut",            &C::m_dwContainerCanAsCashInOut,            0,   meaning::kContainerCanAsCashInOut, Saved, OneOf},
    {kReplenish,        L"CanRejectCash",                      &C::m_dwCanRejectCash,                      3,   meaning::kCanRejectCash, Saved},
    {kReplenish,        L"RetryWhenDepartBad",                 &C::m_bRetryWhenDepartBad,                  0,   meaning::kRetryWhenDepartBad, Saved},
    {kReplenish,        L"ExtraMoveTimesWhenReceiveNotEnough", &C::m_dwExtraMoveTimesWhenReceiveNotEnough, 2,   meaning::kExtraMoveTimes, Saved},
    {kReplenish,        L"HandleBillNotMatchCasValues",        &C::m_dwHandleBillNotMatchCasValues,        1,   meaning::kHandleBillNotMatch, Saved, OneOf},
    {key::Capabilities, L"6060CASTypeRf6040w",                 &C::m_dw6060CASTypeRf6040w,                 0,   L"this mechanism uses the cassette layout of the one without cassette R: 0 no; 1 yes", Saved, OneOf},
    {key::Capabilities, L"HandleRefuseReasonOfVerify",         &C::m_dwHandleRefuseReasonOfVerify,         0,   L"reason of refused notes: 0 always invalid bill; 1 unrecognised notes and the count limit are told apart, as XFS defines", Saved, OneOf},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpC81DriverRegInfo, CCRMRegInfo, kSettings)
