#include "wqspcfg/models/crd/SpCRDWQTKoreaTLD1000RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/CardRetention.h"
#include "wqspcfg/parts/meanings/CRD.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using C = CSpCRDWQTKoreaTLD1000RegInfo;

namespace {

constexpr Key kRetainCardSet = key::Below(L"RetainCardSet");

// clang-format off
constexpr Setting kSettings[] = {
    {key::Comm,      L"Type",                  &C::m_dwType,                  0,    meaning::crd::kType, Saved},
    {key::Comm,      L"Port",                  &C::m_dwPort,                  1,    meaning::kPort, Saved},
    {key::Comm,      L"BaudRate",              &C::m_dwBaudRate,              9600, meaning::kBaudRate, Saved},
    {key::Control,   L"PowerOffOption",        &C::m_dwPowerOffOption,        0,    meaning::kPowerOffOption, OneOf},
    {key::Control,   L"PowerOnOption",         &C::m_dwPowerOnOption,         1,    meaning::kPowerOnOption, Saved, OneOf},
    {key::Control,   L"SupplyThreshold",       &C::m_dwSupplyThreshold,       5,    L"threshold of the supply bin, in cards", Saved},
    {kRetainCardSet, L"MaxRetainCard",         &C::m_dwMaxRetainCard,         20,   meaning::crd::kMaxRetainCard, Saved},
    {kRetainCardSet, L"RetainBinHigh",         &C::m_dwRetainBinHigh,         15,   meaning::kRetainBinHighOfMaxRetainCard, Saved, Normalize([](C& c, DWORD dwHigh, bool bFound) { return RetainBinHigh(dwHigh, bFound, c.m_dwMaxRetainCard); })},
    {key::Control,   L"SkimOfInsertCard",      &C::m_dwSkimOfInsertCard,      0,    meaning::crd::kSkimOfInsertCard, Saved},
    {key::Control,   L"ZEntryOfInsertCard",    &C::m_dwZEntryOfInsertCard,    0,    meaning::crd::kZEntryOfInsertCard, Saved},
    {key::Control,   L"CheckModeOfInsertCard", &C::m_dwCheckModeOfInsertCard, 0,    meaning::crd::kCheckModeOfInsertCard, Saved},
    {key::Control,   L"CheckMode",             &C::m_dwCheckMode,             0,    meaning::crd::kCheckMode, Saved},
    {key::Control,   L"ShutterActionOfInit",   &C::m_dwShutterActionOfInit,   0,    meaning::crd::kShutterActionOfInit, Saved},
    {key::Control,   L"ConnectAfterHWError",   &C::m_bConnectAfterHWError,    0,    meaning::crd::kConnectAfterHWError, Saved},
    {key::Control,   L"CloseOption",           &C::m_dwCloseOption,           2,    meaning::kCloseOption, Saved, OneOf},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpCRDWQTKoreaTLD1000RegInfo, CCRDRegInfo, kSettings)
