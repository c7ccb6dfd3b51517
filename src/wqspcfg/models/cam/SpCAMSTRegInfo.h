#pragma once

#include "wqspcfg/classes/CAMRegInfo.h"
#include "wqspcfg/parts/FaceCamera.h"

// A face-recognition camera with two cameras, near and far.
class WQSPCFG_API CSpCAMSTRegInfo : public CCAMRegInfo, public wqspcfg::FaceCamera
{
  public:
    CSpCAMSTRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpCAMSTRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    bool m_bShowText{};
    CString m_strCamID;
    DWORD m_dwCameraIndex{};
};
