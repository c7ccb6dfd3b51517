#pragma once

#include "wqspcfg/classes/PTRRegInfo.h"

// The T5 reader.
class WQSPCFG_API CSpACTT5RegInfo : public CPTRRegInfo
{
  public:
    CSpACTT5RegInfo(const CString& strName, bool bPhysicalName);
    ~CSpACTT5RegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwTimeOut{};
};
