#pragma once

#include "wqspcfg/classes/CAMRegInfo.h"
#include "wqspcfg/parts/FaceCamera.h"

// A binocular face-recognition camera.
class WQSPCFG_API CSpCAMYTUCB300V01RegInfo : public CCAMRegInfo, public wqspcfg::FaceCamera
{
  public:
    CSpCAMYTUCB300V01RegInfo(const CString& strName, bool bPhysicalName);
    ~CSpCAMYTUCB300V01RegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    bool m_bShowText{};
    CString m_strCamID;
    CString m_strScreenPath;
    CString m_strPersonPath;
    bool m_bDeleteFileWhenReset{};
    CString m_strDeleteFilePath;
    bool m_bShowWindow{};
    bool m_bBroadcastEvent{};
    CString m_strResultPath;
    DWORD m_dwEventInterval{};
    DWORD m_dwCameraIndex{};
    DWORD m_dwImageType{};
    bool m_bCreateWindowWhenOpen{};
};
