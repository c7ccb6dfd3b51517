#include "wqspcfg/models/ptr/SpPTRNEWBSIDBTPP33RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/PTR.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using C = CSpPTRNEWBSIDBTPP33RegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Comm,    L"Port",        &C::m_dwPort,        1,    meaning::kPort, Saved},
    {key::Comm,    L"BaudRate",    &C::m_dwBaudRate,    9600, meaning::kBaudRate, Saved},
    {key::Control, L"PaperWidth",  &C::m_dwPaperWidth,  80,   meaning::printer::kPaperWidth, Saved},
    {key::Control, L"PaperHeight", &C::m_dwPaperHeight, 297,  meaning::printer::kPaperHeight, Saved},
    {key::Control, L"OffsetValid", &C::m_bOffsetValid,  0,    meaning::printer::kOffsetValid, Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpPTRNEWBSIDBTPP33RegInfo, CPTRRegInfo, kSettings)
