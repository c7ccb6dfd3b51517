#pragma once

#include "wqspcfg/classes/IDCRegInfo.h"

// A swipe card reader behind a device driver module.
class WQSPCFG_API CSpIDCPrdMCReadeRegInfo : public CIDCRegInfo
{
  public:
    CSpIDCPrdMCReadeRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpIDCPrdMCReadeRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    CString m_strDN_IDC_SWIPE;
};
