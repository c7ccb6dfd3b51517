#pragma once

#include "wqspcfg/classes/IDCRegInfo.h"

// The MT625V reader of CPU and identity cards.
class WQSPCFG_API CSpIDCMT625VRegInfo : public CIDCRegInfo
{
  public:
    CSpIDCMT625VRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpIDCMT625VRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwCpuCardType{};
    CString m_strCPUCardLogicName;
    CString m_strSimReader;
    CString m_strIDCardLogicName;
    CString m_strCertRead;
    CString m_strImagePath;
    CString m_strIDInfoFormat;
    CString m_strFrontIDPicPath;
    CString m_strBackIDPicPath;
    bool m_bIsSaveIDPic{};
    bool m_bSupportChipPower{};
    bool m_bIsMediaChangeBeep{};
    DWORD m_dwBeepFre{};
    DWORD m_dwBeepKeepTime{}; // milliseconds
};
