#include "wqspcfg/models/shared/MotoScanner.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/parts/meanings/Shared.h"

namespace wqspcfg {

namespace {

using C = MotoScanner;

// clang-format off
constexpr Setting kSettings[] = {
    {key::Device, L"ScannerNameOfConn", &C::m_strScannerNameOfConn, L"WQ-DEFAULT", L"name of the connected reader"},
    {key::Device, L"UseTrackWMRead",    &C::m_dwUseTrackWMRead,     0,             L"QR codes are read through the XFS card-reader track WFS_IDC_TRACK_WM: 0 no; nonzero yes", KeepWhenMissing},
    {key::Device, L"BeepFile",          &C::m_strBeepFile,          L"",           meaning::kScanBeepFile, KeepWhenMissing},
};
// clang-format on

} // namespace

std::span<const Setting> MotoScanner::Rows() noexcept
{
    return kSettings;
}

MotoScanner::MotoScanner(const CString& strName, bool bPhysicalName) : CBCRRegInfo(strName, bPhysicalName)
{
    Construct(*this, kSettings);
}

bool MotoScanner::Load(CLog* pLog)
{
    Loading loading(*this, pLog);
    const bool bResult = CBCRRegInfo::Load(pLog);
    return loading.Read(Settings(), kSettings) && bResult;
}

} // namespace wqspcfg
