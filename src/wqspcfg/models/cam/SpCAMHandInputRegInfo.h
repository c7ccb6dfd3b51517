#pragma once

#include "wqspcfg/classes/CAMRegInfo.h"

// A hand-input pad.
class WQSPCFG_API CSpCAMHandInputRegInfo : public CCAMRegInfo
{
  public:
    CSpCAMHandInputRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpCAMHandInputRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwPenWidth{};
    DWORD m_dwPenColorR{};
    DWORD m_dwPenColorG{};
    DWORD m_dwPenColorB{};
    DWORD m_dwPenColor{};
};
