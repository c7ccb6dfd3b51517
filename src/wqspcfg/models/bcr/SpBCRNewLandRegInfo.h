#pragma once

#include "wqspcfg/classes/BCRRegInfo.h"

// The NewLand barcode reader.
class WQSPCFG_API CSpBCRNewLandRegInfo : public CBCRRegInfo
{
  public:
    CSpBCRNewLandRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpBCRNewLandRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwDevType{};
    DWORD m_dwPort{};
    DWORD m_dwBaudRate{};
    DWORD m_dwGetdataTimes{};
};
