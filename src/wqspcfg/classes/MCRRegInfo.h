// Settings of card return modules (XFS class MCR).
#pragma once

#include "wqspcfg/core/RegInfo.h"

// The card slots and the retain bin of a card return module.
class WQSPCFG_API CMCRRegInfo : public CRegInfo
{
  public:
    CMCRRegInfo(const CString& strName, bool bPhysicalName);
    ~CMCRRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwWaitCardTaken{}; // milliseconds, never 0
    DWORD m_dwCardSlotCn{};
    DWORD m_dwCountOfRetained{};
    DWORD m_dwMaxRetainCard{};
    DWORD m_dwRetainBinHigh{};
};
