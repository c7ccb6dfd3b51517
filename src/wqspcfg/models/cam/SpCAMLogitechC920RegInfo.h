#pragma once

#include "wqspcfg/classes/CAMRegInfo.h"

// The Logitech C920 camera, with a second camera beside it.
class WQSPCFG_API CSpCAMLogitechC920RegInfo : public CCAMRegInfo
{
  public:
    CSpCAMLogitechC920RegInfo(const CString& strName, bool bPhysicalName);
    ~CSpCAMLogitechC920RegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    CString m_strPicturePath;
    CString m_strExPicturePath;
    CString m_strCameraName;
    CString m_strFirmWare;
    CString m_strCameraFirmWare;
    CString m_strExCameraName;
    DWORD m_dwVideoWidth{};
    DWORD m_dwVideoHeight{};
    DWORD m_dwXPos{};
    DWORD m_dwYPos{};
    DWORD m_dwFontSize{};
    CString m_strFontFamily;
    DWORD m_dwwiSO{};
    bool m_bTakePicWithDis{};
    DWORD m_dwUserRate{};
    CString m_strCamPIDVID;
    CString m_strExCamPIDVID;
    bool m_bDestroyWhenNoCreate{};
    DWORD m_dwTakePicDelayTime{};
    bool m_bSetDisplayDlgTopMost{};
    bool m_bResizePicture{};
    DWORD m_dwSrcX{};
    DWORD m_dwSrcY{};
    DWORD m_dwDispWndX{};
    DWORD m_dwDispWndY{};
    DWORD m_dwDispWndWidth{};
    DWORD m_dwDispWndHight{};
    DWORD m_dwMaxPictures{};
    DWORD m_dwMaxDataLength{};
    DWORD m_dwCamPos{};
    DWORD m_dwExCamPos{};
    bool m_bCreatVideoDlgInDisplay{};
    DWORD m_dwPreTextXPos{};
    DWORD m_dwPreTextYPos{};
    DWORD m_dwTextFontSize{};
    CString m_strPreTextFontName;
};
