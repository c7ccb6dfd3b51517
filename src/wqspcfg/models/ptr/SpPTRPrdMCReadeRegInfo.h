#pragma once

#include "wqspcfg/classes/PTRRegInfo.h"

// Magnetic-stripe swipe readers, served as a printer.
class WQSPCFG_API CSpPTRPrdMCReadeRegInfo : public CPTRRegInfo
{
  public:
    CSpPTRPrdMCReadeRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpPTRPrdMCReadeRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    CString m_strDN_IDC_SWIPE;
    DWORD m_dwBrushWait{};
    CString m_strTrack1TiledName;
    CString m_strTrack2TiledName;
    CString m_strTrack3TiledName;
};
