#pragma once

#include "wqspcfg/classes/PTRRegInfo.h"

// The YK2201 magnetic-stripe swipe reader, served as a printer.
class WQSPCFG_API CSpPTRYK2201RegInfo : public CPTRRegInfo
{
  public:
    CSpPTRYK2201RegInfo(const CString& strName, bool bPhysicalName);
    ~CSpPTRYK2201RegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwPort{};
    DWORD m_dwTimeOut{};
    DWORD m_dwBrushWait{};
    CString m_strTrack1TiledName;
    CString m_strTrack2TiledName;
    CString m_strTrack3TiledName;
};
