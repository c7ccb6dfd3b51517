#pragma once

#include "wqspcfg/classes/IDCRegInfo.h"

// The TYRM9000L card reader.
class WQSPCFG_API CSpIDCTYRM9000LRegInfo : public CIDCRegInfo
{
  public:
    CSpIDCTYRM9000LRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpIDCTYRM9000LRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwPort{};
};
