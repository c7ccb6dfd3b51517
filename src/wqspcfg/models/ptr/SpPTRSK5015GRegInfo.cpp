#include "wqspcfg/models/ptr/SpPTRSK5015GRegInfo.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/Counter.h"
#include "wqspcfg/parts/meanings/PTR.h"

using namespace wqspcfg;
using namespace wqspcfg::meaning;
using C = CSpPTRSK5015GRegInfo;

namespace {

// clang-format off
constexpr Setting kSettings[] = {
    {key::Device, L"RetractCount",     &C::m_dwRetractCount,    0,   printer::kRetractCount, Saved},
    {key::Device, L"MaxRetractCount",  &C::m_dwMaxRetractCount, 10,  printer::kMaxRetract, Saved},
    {key::Device, L"m_bMustBeRetract", &C::m_bMustBeRetract,    0,   printer::kMustBeRetract, Saved},
    {key::Device, L"ScanResolution",   &C::m_dwScanResolution,  200, printer::kScanResolution, Saved},
    {key::Device, L"ScanColor", &C::m_dwScanColor, 0,
     L"colours of scanned pictures; 0 the device's standard", Saved},
    {key::Device, L"m_bMustScanJPG", &C::m_bMustScanJPG,     0,   printer::kMustScanJPG, Saved},
    {key::Device, L"RetryCount",     &C::m_dwRetryCount,     3,   L"number of retries", Saved},
    {key::Device, L"RetrySleepTime", &C::m_dwRetrySleepTime, 500, L"time in ms between two retries", Saved},
    {key::Device, L"IsStartScan",    &C::m_bIsStartScan,     1,   L"scanning is started: 0 no; nonzero yes", Saved},
    {key::Device, L"IsScanBarCode", &C::m_bIsScanBarCode, 0,
     L"bar codes are scanned: 0 no; nonzero yes", Saved},
    {key::Device, L"IsEjectPaperWhenJa", &C::m_bIsEjectPaperWhenJa, 1,
     L"jammed paper is ejected: 0 no; nonzero yes", Saved},
};
// clang-format on

} // namespace

WQSPCFG_SETTINGS(CSpPTRSK5015GRegInfo, CPTRRegInfo, kSettings)

void CSpPTRSK5015GRegInfo::AddCurCount()
{
    WriteCount(*this, m_dwRetractCount, OneMore(m_dwRetractCount), RowOf<kSettings>(L"RetractCount"));
}

void CSpPTRSK5015GRegInfo::ResetZeroCount()
{
    WriteCount(*this, m_dwRetractCount, 0, RowOf<kSettings>(L"RetractCount"));
}
