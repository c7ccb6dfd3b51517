#pragma once

#include "wqspcfg/classes/BCRRegInfo.h"

// The NT0810 barcode reader.
class WQSPCFG_API CSpBCRNT0810RegInfo : public CBCRRegInfo
{
  public:
    CSpBCRNT0810RegInfo(const CString& strName, bool bPhysicalName);
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwVirtualCom;
    DWORD m_dwType;
    DWORD m_dwPort;
    DWORD m_dwBaudRate;
};
