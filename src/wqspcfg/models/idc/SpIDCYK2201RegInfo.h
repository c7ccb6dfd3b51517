#pragma once

#include "wqspcfg/classes/IDCRegInfo.h"

// The YK2201 card reader.
class WQSPCFG_API CSpIDCYK2201RegInfo : public CIDCRegInfo
{
  public:
    CSpIDCYK2201RegInfo(const CString& strName, bool bPhysicalName);
    ~CSpIDCYK2201RegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwPort{};
    DWORD m_dwWaitTimeOfOnce{}; // milliseconds
};
