#pragma once

#include "wqspcfg/classes/BCRRegInfo.h"

// The HoneyWell N5680 barcode reader.
class WQSPCFG_API CSpBCRHoneyWellN5680RegInfo : public CBCRRegInfo
{
  public:
    CSpBCRHoneyWellN5680RegInfo(const CString& strName, bool bPhysicalName);
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwVirtualCom;
    DWORD m_dwType;
    DWORD m_dwPort;
    DWORD m_dwBaudRate;
};
