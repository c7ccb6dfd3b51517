#pragma once

#include "wqspcfg/classes/PTRRegInfo.h"

// The LQ-80KF page printer, driven through the operating system.
class WQSPCFG_API CSpLQ80KFExeRegInfo : public CPTRRegInfo
{
  public:
    CSpLQ80KFExeRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpLQ80KFExeRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    // Puts the settings of this model back to their defaults, in the object only; Save makes it last.
    void ResetValue();

    static const wqspcfg::Table& Settings() noexcept;

    CString m_strPtrName;
    DWORD m_dwPageHeight{};
};
