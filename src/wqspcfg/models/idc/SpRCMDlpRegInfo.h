#pragma once

#include "wqspcfg/classes/IDCRegInfo.h"

// The card reader of the DLP card return module.
class WQSPCFG_API CSpRCMDlpRegInfo : public CIDCRegInfo
{
  public:
    CSpRCMDlpRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpRCMDlpRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwReconnectCount{};
};
