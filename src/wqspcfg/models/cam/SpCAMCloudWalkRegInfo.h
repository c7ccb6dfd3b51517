#pragma once

#include "wqspcfg/classes/CAMRegInfo.h"

// A face-recognition camera with CloudWalk's recognition.
class WQSPCFG_API CSpCAMCloudWalkRegInfo : public CCAMRegInfo
{
  public:
    CSpCAMCloudWalkRegInfo(const CString& strName, bool bPhysicalName);
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
    CString m_strCamID;
    DWORD m_dwCameraIndex;
};
