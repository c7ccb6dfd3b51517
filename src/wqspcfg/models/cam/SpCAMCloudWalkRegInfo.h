#pragma once

#include "wqspcfg/classes/CAMRegInfo.h"
#include "wqspcfg/parts/FaceCamera.h"

// A face-recognition camera with CloudWalk's recognition.
class WQSPCFG_API CSpCAMCloudWalkRegInfo : public CCAMRegInfo, public wqspcfg::FaceCamera
{
  public:
    CSpCAMCloudWalkRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpCAMCloudWalkRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    CString m_strCamID;
    DWORD m_dwCameraIndex{};
};
