#pragma once

#include "wqspcfg/classes/IDCRegInfo.h"

// The MT4 DPR312 card reader.
class WQSPCFG_API CSpIDCMT4DPR312RegInfo : public CIDCRegInfo
{
  public:
    CSpIDCMT4DPR312RegInfo(const CString& strName, bool bPhysicalName);
    ~CSpIDCMT4DPR312RegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwPort{};
    DWORD m_dwBaudrate{};
};
