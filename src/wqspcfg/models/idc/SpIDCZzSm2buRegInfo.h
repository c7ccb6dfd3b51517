#pragma once

#include "wqspcfg/classes/IDCRegInfo.h"

// The ZzSm2bu fingerprint collector.
class WQSPCFG_API CSpIDCZzSm2buRegInfo : public CIDCRegInfo
{
  public:
    CSpIDCZzSm2buRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpIDCZzSm2buRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    bool m_bInvialMediaContinueWait{};
    DWORD m_dwDevTimeOut{}; // seconds
    bool m_bSPDBAddVenid{};
    DWORD m_dwDevType{};
};
