#pragma once

#include "wqspcfg/classes/PTRRegInfo.h"

// The SK5015G document scanner, served as a printer.
class WQSPCFG_API CSpPTRSK5015GRegInfo : public CPTRRegInfo
{
  public:
    CSpPTRSK5015GRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpPTRSK5015GRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    // Add one to the number of items retracted, or set it to 0, and write it at once.
    void AddCurCount();
    void ResetZeroCount();
    // Whether scanning is started, as configured.
    bool IsStartScan() const { return m_bIsStartScan; }

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwRetractCount{};
    DWORD m_dwMaxRetractCount{};
    bool m_bMustBeRetract{};
    DWORD m_dwScanResolution{};
    DWORD m_dwScanColor{};
    bool m_bMustScanJPG{};
    DWORD m_dwRetryCount{};
    DWORD m_dwRetrySleepTime{};
    bool m_bIsStartScan{};
    bool m_bIsScanBarCode{};
    bool m_bIsEjectPaperWhenJa{};
};
