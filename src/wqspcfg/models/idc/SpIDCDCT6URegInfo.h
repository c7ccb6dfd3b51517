#pragma once

#include "wqspcfg/classes/IDCRegInfo.h"

// The DC T6U card reader.
class WQSPCFG_API CSpIDCDCT6URegInfo : public CIDCRegInfo
{
  public:
    CSpIDCDCT6URegInfo(const CString& strName, bool bPhysicalName);
    ~CSpIDCDCT6URegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwType{};
    DWORD m_dwPort{};
};
