#pragma once

#include "wqspcfg/classes/CAMRegInfo.h"

// The product-line signature pad. The positions here are those of the tip text and hide the preview window's of the
// class base.
class WQSPCFG_API CSpCAMPrdYGBRegInfo : public CCAMRegInfo
{
  public:
    CSpCAMPrdYGBRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpCAMPrdYGBRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    CString m_strDN_YGB_LED;
    CString m_strDevName;
    CString m_strSignTxtDataPath;
    CString m_strSignPicPath;
    CString m_strBGTextData;
    bool m_bCreatWinDisPlay{};
    DWORD m_dwWinDlgAlpha{};
    DWORD m_dwSignBGColor{};
    DWORD m_dwSignPenColor{};
    DWORD m_dwSignPenWidth{};
    DWORD m_dwPosX{};
    DWORD m_dwPosY{};
    CString m_strFontName;
    DWORD m_dwFontSize{};
    DWORD m_dwTextColor{};
};
