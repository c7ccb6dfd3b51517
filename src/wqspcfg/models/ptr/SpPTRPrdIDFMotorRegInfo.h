#pragma once

#include "wqspcfg/classes/PTRRegInfo.h"

// Motorised identity-card readers with scanner, served as a printer.
class WQSPCFG_API CSpPTRPrdIDFMotorRegInfo : public CPTRRegInfo
{
  public:
    CSpPTRPrdIDFMotorRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpPTRPrdIDFMotorRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    CString m_strDN_IDF_MOTOR;
    DWORD m_dwOpenAction{};
    bool m_bIsEjectAfterScan{};
    DWORD m_dwEjectAfterScanTime{};
    CString m_strIDFFormat;
};
