#pragma once

#include "wqspcfg/classes/IDCRegInfo.h"

// The MR900 identity card reader.
class WQSPCFG_API CSpIDCWQTMR900RegInfo : public CIDCRegInfo
{
  public:
    CSpIDCWQTMR900RegInfo(const CString& strName, bool bPhysicalName);
    ~CSpIDCWQTMR900RegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    CString m_strIDCardImagePath;
};
