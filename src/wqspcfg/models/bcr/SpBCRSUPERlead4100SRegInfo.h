#pragma once

#include "wqspcfg/classes/BCRRegInfo.h"

// The SUPERlead 4100S barcode reader.
class WQSPCFG_API CSpBCRSUPERlead4100SRegInfo : public CBCRRegInfo
{
  public:
    CSpBCRSUPERlead4100SRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpBCRSUPERlead4100SRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwDevType{};
    DWORD m_dwPort{};
    DWORD m_dwBaudRate{};
};
