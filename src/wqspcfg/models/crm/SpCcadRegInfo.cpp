#include "wqspcfg/models/crm/SpCcadRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/models/shared/CassetteKeys.h"
#include "wqspcfg/parts/meanings/CRM.h"

using namespace wqspcfg;
using C = CSpCcadRegInfo;

namespace {

constexpr Key kCassette = key::Below(L"Cassette");
constexpr Key kHopperE = key::Below(L"Cassette\\Hopper\\E");
constexpr Key kHopperRJ = key::Below(L"Cassette\\Hopper\\RJ");
constexpr Key kCassetteType = key::Absolute(L"SOFTWARE\\XFS\\PHYSICAL_SERVICES\\CASHDISPENSER\\COMMON\\CASSETTETYPE");

constexpr const wchar_t* kSlots[] = {L"A", L"B", L"C", L"D", L"E", L"RJ"};
constexpr DWORD kTypes[] = {0x00040030, 0x00040030, 0x00040030, 0x00040030, 0x40, 0};

// clang-format off
constexpr Setting kSlotRows[] = {
    {key::HopperSlot, L"Type", Element<&C::m_arSlot, &tagCassetteSlot::dwType>,
     0, meaning::kSlotType, Saved, PerIteration(kTypes), Format(L"0x%08X"), Label(L"%s.Type")},
    {key::HopperSlot, L"CasFull", Element<&C::m_arSlot, &tagCassetteSlot::dwCasFull>,
     2, L"distance to full as a code: 0 to 4 mean 100 x (code + 1) notes", Saved, Range(0, 4), Label(L"%s.CasFull")},
    {key::HopperSlot, L"CasNearEmpty", Element<&C::m_arSlot, &tagCassetteSlot::dwCasNearEmpty>,
     0, L"distance to nearly empty as a code: 0 to 4 mean 100 x (code + 1) notes", Saved, Range(0, 4),
     Label(L"%s.CasNearEmpty")},
};

constexpr Setting kSettings[] = {
    {key::Capabilities, L"ActionOfInnerShutterCantCloseInCIM", &C::m_dwActionOfInnerShutterCantCloseInCIM, 1,
     meaning::kInnerShutterCantClose, Saved},
    {key::Capabilities, L"RJBillMustStack", &C::m_dwRJBillMustStack, 0,
     L"rejected notes must be stacked", Saved},
    {key::Capabilities, L"HwInitCount", &C::m_dwHwInitCount, 0, meaning::kHwInitCount, Saved},
    {key::Hopper, L"CasTypeFollowSlot", &C::m_dwCasTypeFollowSlot, 1,
     meaning::kCasTypeFollowSlot, Saved, OneOf},
    {kHopperRJ, L"UseCassetteRJ",       &C::m_dwUseCassetteRJ,       1, L"cassette RJ is used", Saved},
    {kHopperE,  L"UseCassetteEAsRJCAS", &C::m_dwUseCassetteEAsRJCAS, 0, meaning::kUseCassetteE, Saved},
    Repeat(kSlots, Rows<kSlotRows>),
    {kCassette, L"UseBarcodeAsTrackData", &C::m_dwUseBarcodeAsTrackData, 0,
     L"the barcode is used as track data", Saved},
    {kCassetteType, L"dwAType", &C::m_dwAType, 1, L"physical type of cassette A: 0 dispense only; 1 recycle", OneOf},
    {kCassetteType, L"dwBType", &C::m_dwBType, 1, L"physical type of cassette B: 0 dispense only; 1 recycle", OneOf},
    {kCassetteType, L"dwCType", &C::m_dwCType, 1, L"physical type of cassette C: 0 dispense only; 1 recycle", OneOf},
    {kCassetteType, L"dwDType", &C::m_dwDType, 1, L"physical type of cassette D: 0 dispense only; 1 recycle", OneOf},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpCcadRegInfo, CCRMRegInfo, kSettings)
