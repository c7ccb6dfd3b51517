#pragma once

#include "wqspcfg/classes/PTRRegInfo.h"

// The Hitachi KC8203 finger-vein reader, served as a printer.
class WQSPCFG_API CSpPTRHitachiKC8203RegInfo : public CPTRRegInfo
{
  public:
    CSpPTRHitachiKC8203RegInfo(const CString& strName, bool bPhysicalName);
    ~CSpPTRHitachiKC8203RegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    bool m_bDisplayDialog{};
    DWORD m_dwWaitTimeOfDialog{};
    DWORD m_dwIntervalOfDialog{};
};
