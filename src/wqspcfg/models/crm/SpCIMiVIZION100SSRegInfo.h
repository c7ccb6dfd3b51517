#pragma once

#include "wqspcfg/classes/CRMRegInfo.h"

// A note acceptor with one cassette, slot A.
class WQSPCFG_API CSpCIMiVIZION100SSRegInfo : public CCRMRegInfo
{
  public:
    CSpCIMiVIZION100SSRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpCIMiVIZION100SSRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwUseEscrow{};
    DWORD m_dwCasVolume{};
    DWORD m_dwCasFull{};
};
