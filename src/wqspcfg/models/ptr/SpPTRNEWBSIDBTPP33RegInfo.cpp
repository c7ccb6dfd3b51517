#include "wqspcfg/models/ptr/SpPTRNEWBSIDBTPP33RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/PTR.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using namespace wqspcfg::meaning;
using C = CSpPTRNEWBSIDBTPP33RegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Comm,    L"Port",        &C::m_dwPort,        1,    kPort, Saved, RefersTo(Reference::SerialPort)},
    {key::Comm,    L"BaudRate",    &C::m_dwBaudRate,    9600, kBaudRate, Saved},
    {key::Control, L"PaperWidth",  &C::m_dwPaperWidth,  80,   printer::kPaperWidth, Saved},
    {key::Control, L"PaperHeight", &C::m_dwPaperHeight, 297,  printer::kPaperHeight, Saved},
    {key::Control, L"OffsetValid", &C::m_bOffsetValid,  0,    printer::kOffsetValid, Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpPTRNEWBSIDBTPP33RegInfo, CPTRRegInfo, kSettings)
