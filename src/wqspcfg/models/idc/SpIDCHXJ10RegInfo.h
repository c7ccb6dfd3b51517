#pragma once

#include "wqspcfg/classes/IDCRegInfo.h"

// The HX J10 identity card reader.
class WQSPCFG_API CSpIDCHXJ10RegInfo : public CIDCRegInfo
{
  public:
    CSpIDCHXJ10RegInfo(const CString& strName, bool bPhysicalName);
    ~CSpIDCHXJ10RegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwPort{};
    DWORD m_dwFormat{};
    CString m_strImageSavePath;
    CString m_strIDCardLogicName;
    CString m_strCertRead;
};
