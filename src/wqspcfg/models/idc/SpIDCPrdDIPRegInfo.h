#pragma once

#include "wqspcfg/classes/IDCRegInfo.h"

// A dip card reader behind a device driver module.
class WQSPCFG_API CSpIDCPrdDIPRegInfo : public CIDCRegInfo
{
  public:
    CSpIDCPrdDIPRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpIDCPrdDIPRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    CString m_strDN_IDC_DIP;
    bool m_bTranformIC2Hex{};
    bool m_bRawDataToChipIO{};
};
