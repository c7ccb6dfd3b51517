#include "wqspcfg/models/ptr/SpPTRWQRSV100RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/PTR.h"

using namespace wqspcfg;
using C = CSpPTRWQRSV100RegInfo;

namespace {

// clang-format off
constexpr Setting kRetainBin[] = {
    {key::Below(L"RetainBins\\RetainBin%d"), L"RetainBinCount", Element<&C::m_dwRetainBinCount>, 0, meaning::printer::kRetainBinCount, Saved},
};

constexpr Setting kSettings[] = {
    {key::Device, L"MaxRetainCount",  &C::m_dwMaxRetainCount,  100, meaning::printer::kMaxRetainCount, Saved},
    {key::Device, L"HighRetainCount", &C::m_dwHighRetainCount, 90,  meaning::printer::kHighRetainCount, Saved},
    Repeat(0, C::kRetainBins - 1, kRetainBin),
    {key::Comm,   L"PortOfRFID",      &C::m_dwPortOfRFID,      1,  meaning::printer::kRFIDPort, Saved},
    {key::Device, L"LeftAdjustSpace", &C::m_dwLeftAdjustSpace, 0,  meaning::printer::kLeftAdjustSpace, Saved},
    {key::Device, L"ResetCount",      &C::m_dwResetCount,      3,  meaning::printer::kResetCount, Saved},
    {key::Device, L"OpenActionType",  &C::m_dwOpenActionType,  0,  meaning::printer::kOpenOption, Saved, OneOf},
    {key::Device, L"CloseActionType", &C::m_dwCloseActionType, 0,  meaning::printer::kCloseActionType, Saved, OneOf},
    {key::Device, L"ResetActionType", &C::m_dwResetActionType, 1,  meaning::printer::kResetActionType, Saved, OneOf},
    {key::Device, L"FrimBankType",    &C::m_dwFrimBankType,    0,  L"bank profile of the firmware; 0 the standard one", Saved},
    {key::Device, L"SaveImageTime",   &C::m_dwSaveImageTime,   30, meaning::printer::kSaveImageTime, Saved, Range(0, 90)},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpPTRWQRSV100RegInfo, CPTRRegInfo, kSettings)
