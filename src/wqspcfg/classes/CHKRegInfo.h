// Settings of the cheque-reader class (XFS class CHK), which this system uses for fingerprint readers.
#pragma once

#include "wqspcfg/core/RegInfo.h"

class WQSPCFG_API CCHKRegInfo : public CRegInfo
{
  public:
    CCHKRegInfo(const CString& strName, bool bPhysicalName);
    ~CCHKRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    bool m_bSendMediaInsertedEvent{};
};
