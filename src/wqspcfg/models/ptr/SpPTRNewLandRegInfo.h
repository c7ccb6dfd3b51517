#pragma once

#include "wqspcfg/classes/PTRRegInfo.h"

// The NewLand barcode scanner, served as a printer.
class WQSPCFG_API CSpPTRNewLandRegInfo : public CPTRRegInfo
{
  public:
    CSpPTRNewLandRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpPTRNewLandRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    bool m_bBroadMediainserted{};
    DWORD m_dwDevType{};
    DWORD m_dwPort{};
    DWORD m_dwBaudRate{};
    DWORD m_dwGetdataTimes{};
};
