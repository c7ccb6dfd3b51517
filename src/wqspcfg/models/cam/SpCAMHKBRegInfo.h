#pragma once

#include "wqspcfg/classes/CAMRegInfo.h"

// A document camera.
class WQSPCFG_API CSpCAMHKBRegInfo : public CCAMRegInfo
{
  public:
    CSpCAMHKBRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpCAMHKBRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    CString m_strPicturePath;
    CString m_strCameraName;
    DWORD m_dwVideoWidth{};
    DWORD m_dwVideoHeight{};
    DWORD m_dwXPos{};
    DWORD m_dwYPos{};
    DWORD m_dwFontSize{};
    DWORD m_dwMaxPictures{};
    DWORD m_dwMaxDataLength{};
    DWORD m_dwHighCamRotateAngle{};
    DWORD m_dwHighCamResolution{};
};
