#pragma once

#include "wqspcfg/classes/CAMRegInfo.h"

// A face-recognition camera with two cameras, near and far.
class WQSPCFG_API CSpCAMSTRegInfo : public CCAMRegInfo
{
  public:
    CSpCAMSTRegInfo(const CString& strName, bool bPhysicalName);
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwTimeOut;
    DWORD m_dwMaxPictures;
    DWORD m_dwFontColor;
    DWORD m_dwFontSize;
    DWORD m_dwPointX;
    DWORD m_dwPointY;
    CString m_strFMVersion;
    bool m_bShowText;
    CString m_strCamID;
    DWORD m_dwCameraIndex;
};
