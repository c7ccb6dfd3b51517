#pragma once

#include "wqspcfg/classes/PTRRegInfo.h"

// The NEWBSID BTPP33 receipt printer.
class WQSPCFG_API CSpPTRNEWBSIDBTPP33RegInfo : public CPTRRegInfo
{
  public:
    CSpPTRNEWBSIDBTPP33RegInfo(const CString& strName, bool bPhysicalName);
    ~CSpPTRNEWBSIDBTPP33RegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwPort{};
    DWORD m_dwBaudRate{};
    DWORD m_dwPaperWidth{};
    DWORD m_dwPaperHeight{};
    bool m_bOffsetValid{};
};
