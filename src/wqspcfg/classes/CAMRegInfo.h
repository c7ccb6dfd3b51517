// Settings of cameras (XFS class CAM).
#pragma once

#include "wqspcfg/core/RegInfo.h"

class WQSPCFG_API CCAMRegInfo : public CRegInfo
{
  public:
    CCAMRegInfo(const CString& strName, bool bPhysicalName);
    ~CCAMRegInfo() override;
    bool Load(CLog* pLog) override;
    // Writes the camera's values only: what all service providers share is not a camera's to write.
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwRoomHigh{};
    DWORD m_dwPersonHigh{};
    DWORD m_dwExtraHigh{};
    DWORD m_dwExitSlotHigh{};
    DWORD m_dwHighCameraHigh{};
    DWORD m_dwApID{};
    DWORD m_dwPosX{}; // of the preview window
    DWORD m_dwPosY{};
    DWORD m_dwPosW{};
    DWORD m_dwPosH{};
    bool m_bCheckDisplayHwnd{};
    bool m_bRetInvaildWithTextLong{};
    bool m_bCheckPicPath{};
    DWORD m_dwNoCheckCamPar{};
    DWORD m_dwSignMemory{};
    bool m_bHaveOutWhenTakePic{};
    bool m_bFirstCheckCameraST{};
};
