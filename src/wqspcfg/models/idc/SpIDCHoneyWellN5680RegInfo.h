#pragma once

#include "wqspcfg/classes/IDCRegInfo.h"

// The HoneyWell N5680 barcode scanner, served as a card reader.
class WQSPCFG_API CSpIDCHoneyWellN5680RegInfo : public CIDCRegInfo
{
  public:
    CSpIDCHoneyWellN5680RegInfo(const CString& strName, bool bPhysicalName);
    ~CSpIDCHoneyWellN5680RegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwType{};
    DWORD m_dwPort{};
    DWORD m_dwBaudRate{};
    DWORD m_dwUseTrackWMRead{};
};
