#include "wqspcfg/models/ptr/SpPTRSNBCD200MRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/PTR.h"
#include "wqspcfg/parts/meanings/Shared.h"

using namespace wqspcfg;
using namespace wqspcfg::meaning;
using C = CSpPTRSNBCD200MRegInfo;

namespace {

constexpr Key kComm = key::Below(L"comm");

// clang-format off
constexpr Setting kSettings[] = {
    {kComm,       L"BaudRate",       &C::m_dwBaudRate,       9600, kBaudRate, Saved},
    {key::Device, L"MaxRetain",      &C::m_dwMaxRetain,      100,  printer::kMaxRetain, Saved},
    {key::Device, L"HighRetainBin",  &C::m_dwHighRetainBin,  90,   printer::kHighRetainBin, Saved},
    {key::Device, L"RetainBinCount", &C::m_dwRetainBinCount, 0,    printer::kRetainBinCount, Saved},
    {key::Device, L"MediaType",      &C::m_dwMediaType,      0,    printer::kNotDocumented, Saved},
    {key::Device, L"OCRStyle",       &C::m_dwOCRStyle,       0,    printer::kNotDocumented, Saved},
    {key::Device, L"DevType",        &C::m_dwDevType,        0,    printer::kNotDocumented, Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpPTRSNBCD200MRegInfo, CPTRRegInfo, kSettings)
