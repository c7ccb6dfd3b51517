#pragma once

#include "wqspcfg/classes/PTRRegInfo.h"

// The ERU180 magnetic-stripe swipe reader, served as a printer.
class WQSPCFG_API CSpPTRTTCERU180RegInfo : public CPTRRegInfo
{
  public:
    CSpPTRTTCERU180RegInfo(const CString& strName, bool bPhysicalName);
    ~CSpPTRTTCERU180RegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwBrushWait{};
};
