#pragma once

#include "wqspcfg/classes/MCRRegInfo.h"

// The CF66 card return module. Its Save writes the communication settings only: the retain counters and the number of
// slots stay in the registry as they are.
class WQSPCFG_API CSpMCRCF66RegInfo : public CMCRRegInfo
{
  public:
    CSpMCRCF66RegInfo(const CString& strName, bool bPhysicalName);
    ~CSpMCRCF66RegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwType{}; // as stored: a number other than 1 and 2 is not corrected
    DWORD m_dwPort{};
    DWORD m_dwSyncEjectCard{};
};
