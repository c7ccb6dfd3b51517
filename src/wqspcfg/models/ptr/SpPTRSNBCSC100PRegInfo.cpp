#include "wqspcfg/models/ptr/SpPTRSNBCSC100PRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/PTR.h"

using namespace wqspcfg;
using namespace wqspcfg::meaning;
using C = CSpPTRSNBCSC100PRegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Device, L"MaxRetain",      &C::m_dwMaxRetain,      100, printer::kMaxRetain, Saved},
    {key::Device, L"HighRetainBin",  &C::m_dwHighRetainBin,  90,  printer::kHighRetainBin, Saved},
    {key::Device, L"RetainBinCount", &C::m_dwRetainBinCount, 0,   printer::kRetainBinCount, Saved},
    {key::Device, L"ImageFilePath",  &C::m_strImageFilePath, L"", L"path of the scanned image files", Saved},
    {key::Device, L"TimeWaitReadImage", &C::m_dwTimeWaitReadImage, 30,
     L"time in s for which reading an image waits", Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpPTRSNBCSC100PRegInfo, CPTRRegInfo, kSettings)
