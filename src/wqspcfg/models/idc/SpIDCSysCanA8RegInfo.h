#pragma once

#include "wqspcfg/classes/IDCRegInfo.h"

// The SysCan A8 identity card scanner.
class WQSPCFG_API CSpIDCSysCanA8RegInfo : public CIDCRegInfo
{
  public:
    CSpIDCSysCanA8RegInfo(const CString& strName, bool bPhysicalName);
    ~CSpIDCSysCanA8RegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    CString m_strIDCardImagePath;
    bool m_bAutoEject{};
};
