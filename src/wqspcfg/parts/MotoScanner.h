// What the models of the Moto scanner have in common, served as a barcode reader or as a card reader.
#pragma once

#include "wqspcfg/core/settings/Setting.h"
#include "wqspcfg/parts/meanings/Shared.h"

namespace wqspcfg {

struct MotoScanner
{
    CString m_strScannerNameOfConn;
    DWORD m_dwUseTrackWMRead{};
    CString m_strBeepFile;
};

// clang-format off
template <class C>
inline constexpr Setting kMotoScannerRows[] = {
    {key::Device, L"ScannerNameOfConn", Of<C, &MotoScanner::m_strScannerNameOfConn>, L"WQ-DEFAULT",
     L"name of the connected reader"},
    {key::Device, L"UseTrackWMRead", Of<C, &MotoScanner::m_dwUseTrackWMRead>, 0,
     L"QR codes are read through the XFS card-reader track WFS_IDC_TRACK_WM: 0 no; nonzero yes", KeepWhenMissing},
    {key::Device, L"BeepFile", Of<C, &MotoScanner::m_strBeepFile>, L"", meaning::kScanBeepFile, KeepWhenMissing,
     RefersTo(Reference::File)},
};
// clang-format on

} // namespace wqspcfg
