#pragma once

#include "wqspcfg/classes/CAMRegInfo.h"

// USB cameras on an EM27585 grabber, one for each camera position: 0 room, 1 person, 2 exit slot, 3 extra.
class WQSPCFG_API CSpCAMEm27585RegInfo : public CCAMRegInfo
{
  public:
    CSpCAMEm27585RegInfo(const CString& strName, bool bPhysicalName);
    ~CSpCAMEm27585RegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    CString m_strPicturePath;
    DWORD m_dwXPos{};
    DWORD m_dwYPos{};
    DWORD m_dwFontSize{};
    DWORD m_dwVideoWidth{};
    DWORD m_dwVideoHeight{};
    DWORD m_dwVideoFrame{};
    DWORD m_dwShowWindowWaitTime{};
    DWORD m_dwMaxDataLength{};
    bool m_bIsShowVideoWindow{};
    bool m_bIsVDAConfigureCam{};
    bool m_bStartVideobyOpen{};
    DWORD m_dwMaxPictures{};
    bool m_bIsStoreCurPicIndex{};
    DWORD m_dwCurPicIndex{};
    DWORD m_dwAvailCamCount{};
    bool m_bCamEnabled{};
    CString m_strCam[4];
    DWORD m_dwCurPicCntOfCam[4]{};
};
