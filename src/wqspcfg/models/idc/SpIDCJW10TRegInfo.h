#pragma once

#include "wqspcfg/classes/IDCRegInfo.h"

// The JW10T identity card reader with a camera.
class WQSPCFG_API CSpIDCJW10TRegInfo : public CIDCRegInfo
{
  public:
    CSpIDCJW10TRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpIDCJW10TRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    CString m_strCameraName;
    CString m_strCamPIDVID;
    DWORD m_dwXPos{};
    DWORD m_dwYPos{};
    DWORD m_dwVideoWidth{};
    DWORD m_dwVideoHeight{};
};
