#pragma once

#include "wqspcfg/classes/IDCRegInfo.h"

// The WEL fingerprint collector.
class WQSPCFG_API CSpIDCWELFingerRegInfo : public CIDCRegInfo
{
  public:
    CSpIDCWELFingerRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpIDCWELFingerRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwDevType{};
    CString m_strFingerPicDir;
    DWORD m_dwGetFingerFetureTimeOut{};   // seconds
    DWORD m_dwGetFingerTemplateTimeOut{}; // seconds
    CString m_strT4PicDir;
};
