#include "wqspcfg/models/ptr/SpPTRScanD412RegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/Counter.h"
#include "wqspcfg/parts/meanings/PTR.h"

using namespace wqspcfg;
using namespace wqspcfg::meaning;
using C = CSpPTRScanD412RegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Device, L"RetractCount",    &C::m_dwRetractCount,    0,  printer::kRetractCount, Saved},
    {key::Device, L"MaxRetractCount", &C::m_dwMaxRetractCount, 10, printer::kMaxRetract, Saved},
    {key::Device, L"MustBeRetract",   &C::m_bMustBeRetract,    0,  printer::kMustBeRetract, Saved},
    {key::Device, L"HideErrA7", &C::m_bHideErrA7, 0,
     L"the device's error A7 is not reported: 0 no; nonzero yes", Saved},
    {key::Device, L"MustScanColorFULL", &C::m_bMustScanColorFULL, 0,
     L"always scan in full colour: 0 no; nonzero yes", Saved},
    {key::Device, L"m_bMustScanJPG", &C::m_bMustScanJPG,     0,   printer::kMustScanJPG, Saved},
    {key::Device, L"ScanResolution", &C::m_dwScanResolution, 200, printer::kScanResolution, Saved},
    {key::Device, L"ScanHight", &C::m_dwScanHight, 0,
     L"height of the scanned area; 0 the whole media", Saved},
    {key::Device, L"InsertMediaTryTimtOut", &C::m_dwInsertMediaTryTimtOut, 30,
     L"time-out in s of trying to take in media", Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpPTRScanD412RegInfo, CPTRRegInfo, kSettings)

void CSpPTRScanD412RegInfo::AddCurCount()
{
    WriteCount(*this, m_dwRetractCount, OneMore(m_dwRetractCount), RowOf<kSettings>(L"RetractCount"));
}

void CSpPTRScanD412RegInfo::ResetZeroCount()
{
    WriteCount(*this, m_dwRetractCount, 0, RowOf<kSettings>(L"RetractCount"));
}
