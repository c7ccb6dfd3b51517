#pragma once

#include "wqspcfg/classes/CAMRegInfo.h"

// The product-line binocular face camera.
class WQSPCFG_API CSpCAMPrdBNCCameraRegInfo : public CCAMRegInfo
{
  public:
    CSpCAMPrdBNCCameraRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpCAMPrdBNCCameraRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    CString m_strDN_CAM_MNC_PERSON;
    CString m_strDN_CAM_BNC_FACE;
    CString m_strScreenPicPath;
    CString m_strPersonPicPath;
    CString m_strMonocularPicPath;
    bool m_bDeleteFileWhenReset{};
    CString m_strDeleteFilePath;
    CString m_strResultPath;
    bool m_bSupportMonocularCamera{};
    bool m_bCreateWindowWhenOpen{};
    bool m_bBroadcastEvent{};
    DWORD m_dwEventInterval{};
    DWORD m_dwLivenessTimeOut{};
    DWORD m_dwPicTextXPos{};
    DWORD m_dwPicTextYPos{};
    CString m_strPicTextFontName;
    DWORD m_dwwiSO{};
    DWORD m_dwPicTextFontColor{};
    DWORD m_dwPicTextFontSize{};
    DWORD m_dwMNCDispWndWidth{};
    DWORD m_dwMNCDispWndHight{};
    DWORD m_dwMaxPictures{};
};
