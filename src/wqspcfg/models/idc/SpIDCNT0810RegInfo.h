#pragma once

#include "wqspcfg/classes/IDCRegInfo.h"

// The NT0810 barcode scanner, served as a card reader.
class WQSPCFG_API CSpIDCNT0810RegInfo : public CIDCRegInfo
{
  public:
    CSpIDCNT0810RegInfo(const CString& strName, bool bPhysicalName);
    ~CSpIDCNT0810RegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwPort{};
    DWORD m_dwBaudRate{};
};
