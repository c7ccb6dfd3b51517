#pragma once

#include "wqspcfg/classes/CAMRegInfo.h"

// A USB camera with YUY2 video.
class WQSPCFG_API CSpCAMUsbYUY2RegInfo : public CCAMRegInfo
{
  public:
    CSpCAMUsbYUY2RegInfo(const CString& strName, bool bPhysicalName);
    ~CSpCAMUsbYUY2RegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    CString m_strPicturePath;
    DWORD m_dwVideoWidth{};
    DWORD m_dwVideoHeight{};
    DWORD m_dwXPos{};
    DWORD m_dwYPos{};
    DWORD m_dwFontSize{};
    bool m_bTakePicWithDis{};
    DWORD m_dwUserRate{};
    DWORD m_dwMaxPictures{};
    DWORD m_dwMaxDataLength{};
    DWORD m_dwCamPos{};
};
