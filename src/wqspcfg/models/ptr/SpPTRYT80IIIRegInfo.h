#pragma once

#include "wqspcfg/classes/PTRRegInfo.h"

// The YT80III receipt printer with retract bin.
class WQSPCFG_API CSpPTRYT80IIIRegInfo : public CPTRRegInfo
{
  public:
    CSpPTRYT80IIIRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpPTRYT80IIIRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwPort{};
    DWORD m_dwBaudRate{};
    DWORD m_dwCutMode{};
    DWORD m_dwCutPos{};
    DWORD m_dwMaxRetract{};
    DWORD m_dwHIGHRetract{};
    bool m_bIsSendMediaTakenEvent{};
    DWORD m_dwPTRRetractCount{};
    DWORD m_dwFieldPosYChange{};
    bool m_bFixFontSize{};
    bool m_bMustBeBolt{};
    CString m_strFontName;
    DWORD m_dwFormWidth{};
    DWORD m_dwFormHeight{};
    DWORD m_dwFontSize{};
    DWORD m_dwLineSpace{};
    DWORD m_dwWordSpace{};
    DWORD m_dwWordWidth{};
    DWORD m_dwWhitePaperSize{};
    bool m_bIsAllEject{};
};
