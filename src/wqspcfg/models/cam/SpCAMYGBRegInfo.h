#pragma once

#include "wqspcfg/classes/CAMRegInfo.h"

// A signature pad. The positions here are those of the tip text and hide the preview window's of the class base.
class WQSPCFG_API CSpCAMYGBRegInfo : public CCAMRegInfo
{
  public:
    CSpCAMYGBRegInfo(const CString& strName, bool bPhysicalName);
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    CString m_strPicturePath;
    bool m_bLoadOneMoreKey;
    bool m_bCreatWinDisPlay;
    DWORD m_dwWinDlgAlpha;
    DWORD m_dwSignBGColor;
    DWORD m_dwSignPenColor;
    DWORD m_dwSignPenWidth;
    DWORD m_dwPosX;
    DWORD m_dwPosY;
    CString m_strFontName;
    DWORD m_dwFontSize;
    DWORD m_dwTextColor;
    DWORD m_dwDevType;
    CString m_strBGTextData;
};
