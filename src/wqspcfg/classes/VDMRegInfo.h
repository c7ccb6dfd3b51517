// Settings of the vendor-dependent mode (XFS class VDM).
#pragma once

#include "wqspcfg/core/RegInfo.h"

// Which vendor-dependent application (VDA) the provider starts when the terminal enters vendor mode, and how. Nothing
// of it is saved.
class WQSPCFG_API CVDMRegInfo : public CRegInfo
{
  public:
    CVDMRegInfo(const CString& strName, bool bPhysicalName);
    ~CVDMRegInfo() override;
    bool Load(CLog* pLog) override;

    static const wqspcfg::Table& Settings() noexcept;

    CString m_strPath; // with this library's directory in front when it is not absolute
    CString m_strRegAppId;
    bool m_bBroardcastReqEvent2All{};
    DWORD m_dwMaxExitTime{}; // seconds, 0: no limit
    bool m_bForceExitSP{};
    DWORD m_dwReserved[128] = {};
};
