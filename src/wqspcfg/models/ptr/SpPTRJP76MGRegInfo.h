#pragma once

#include "wqspcfg/classes/PTRRegInfo.h"

// The JP76MG receipt printer.
class WQSPCFG_API CSpPTRJP76MGRegInfo : public CPTRRegInfo
{
  public:
    CSpPTRJP76MGRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpPTRJP76MGRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwLineHeight{};
    DWORD m_dwWordSpace{};
    bool m_bUnderline{};
    bool m_bDoubleHeight{};
    bool m_bDoubleWidth{};
    DWORD m_dwPort{};
    DWORD m_dwBaudRate{};
    bool m_bMustBeWordWrap{};
    bool m_bOverFlowTerminate{};
};
