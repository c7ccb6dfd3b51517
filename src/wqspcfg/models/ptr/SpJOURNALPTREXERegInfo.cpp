#include "wqspcfg/models/ptr/SpJOURNALPTREXERegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/PTR.h"

using namespace wqspcfg;
using namespace wqspcfg::meaning;
using C = CSpJOURNALPTREXERegInfo;

namespace {

constexpr Key kPrintParam = key::Below(L"PrintParam\\");
constexpr Key kDriver = key::Absolute(L"SOFTWARE\\TARNO\\Driver\\WQDrJournal");

// clang-format off
constexpr Setting kSettings[] = {
    {kPrintParam, L"RawDataOverflowType", &C::m_dwRawDataOverflowType, 0,
     L"what happens to raw data that run beyond the line; 0 the standard handling", Saved},
    {kPrintParam, L"RawDataFilterStringTailReturn", &C::m_bRawDataFilterStringTailReturn, 0,
     L"a line end at the tail of raw data is filtered out: 0 no; nonzero yes", Saved},
    {kPrintParam, L"ReturnWord",  &C::m_strReturnWord, L"", printer::kReturnWord, Saved},
    {kPrintParam, L"ColumnWidth", &C::m_dwColumnWidth, 40,  L"characters in a line", Saved},
    {kPrintParam, L"MustBeBolt",  &C::m_bMustBeBolt,   0,   printer::kMustBeBold, Saved},
    {kPrintParam, L"AutoReset",   &C::m_bAutoReset,    0,   printer::kAutoReset, Saved},
    {kPrintParam, L"CharSet",     &C::m_dwCharSet,     0,   printer::kCharSet, Saved},
    {kPrintParam, L"UseUpInspect", &C::m_bUseUpInspect, 0,
     L"the upper inspection sensor is used: 0 no; nonzero yes", Saved},
    {kPrintParam, L"SendFieldWarnningEvent", &C::m_bSendFieldWarnningEvent, 0,
     printer::kSendFieldWarnningEvent, Saved},
    {kDriver, L"SizeBt2Lines", &C::m_dwSizeBt2Lines, 30, L"distance between two lines"},
    {kDriver, L"PrintHeight",  &C::m_dwPrintHeight,  24, L"height of the printed characters"},
    {key::Device, L"IsSimulate", &C::m_bIsSimulate, 0,
     L"the device is simulated: 0 no; nonzero yes", Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpJOURNALPTREXERegInfo, CPTRRegInfo, kSettings)
