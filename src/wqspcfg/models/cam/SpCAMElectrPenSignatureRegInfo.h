#pragma once

#include "wqspcfg/classes/CAMRegInfo.h"

// An electronic pen for signatures. The positions here are those of the tip text and hide the preview window's of the
// class base.
class WQSPCFG_API CSpCAMElectrPenSignatureRegInfo : public CCAMRegInfo
{
  public:
    CSpCAMElectrPenSignatureRegInfo(const CString& strName, bool bPhysicalName);
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    bool m_bCreatWinDisplay;
    DWORD m_dwWinDlgAlpha;
    DWORD m_dwSignBGColor;
    DWORD m_dwSignPenColor;
    DWORD m_dwSignPenWidth;
    DWORD m_dwPosX;
    DWORD m_dwPosY;
    CString m_strFontName;
    DWORD m_dwFontSize;
    DWORD m_dwTextColor;
};
