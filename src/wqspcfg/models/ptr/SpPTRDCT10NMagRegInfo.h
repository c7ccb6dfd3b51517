#pragma once

#include "wqspcfg/classes/PTRRegInfo.h"

// The T10N magnetic-stripe reader, served as a printer.
class WQSPCFG_API CSpPTRDCT10NMagRegInfo : public CPTRRegInfo
{
  public:
    CSpPTRDCT10NMagRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpPTRDCT10NMagRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwPort{};
    DWORD m_dwBaudrate{};
    CString m_strTrack1TiledName;
    CString m_strTrack2TiledName;
    CString m_strTrack3TiledName;
};
