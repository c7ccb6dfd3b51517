#pragma once

#include "wqspcfg/classes/CAMRegInfo.h"

// A face-recognition camera.
class WQSPCFG_API CSpCAMHiKFaceRegInfo : public CCAMRegInfo
{
  public:
    CSpCAMHiKFaceRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpCAMHiKFaceRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    CString m_strPicturePath;
    DWORD m_dwXPos{};
    DWORD m_dwYPos{};
    DWORD m_dwFontSize{};
    CString m_strFontFamily;
    DWORD m_dwwiSO{};
    bool m_bStartFaceDetect{};
    CString m_strHardWareID;
    bool m_bStartOSD{};
    CString m_strOSDContent;
    DWORD m_dwOSDXPos{};
    DWORD m_dwOSDYPos{};
    DWORD m_dwTakePictureGetFaceFeatureTimes{};
    DWORD m_dwMaxPictures{};
    DWORD m_dwMaxDataLength{};
    DWORD m_dwCamPos{};
};
