#pragma once

#include "wqspcfg/classes/PTRRegInfo.h"

// The DP330 receipt printer, on USB.
class WQSPCFG_API CSpPTRCTZDP330RegInfo : public CPTRRegInfo
{
  public:
    CSpPTRCTZDP330RegInfo(const CString& strName, bool bPhysicalName);
    ~CSpPTRCTZDP330RegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    CString m_strUsbPath;
    DWORD m_dwLineHeight{};
};
