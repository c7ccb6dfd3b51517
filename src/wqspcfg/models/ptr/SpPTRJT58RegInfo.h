#pragma once

#include "wqspcfg/models/shared/RasterReceiptPrinter.h"

// The JT58 receipt printer.
class WQSPCFG_API CSpPTRJT58RegInfo : public wqspcfg::RasterReceiptPrinter
{
  public:
    CSpPTRJT58RegInfo(const CString& strName, bool bPhysicalName);
    ~CSpPTRJT58RegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    // Takes one off the receipts left (m_dwCurCountWhenLow), not below 0, and writes them at once.
    void ReduceLowCount();
    // Sets the receipts left to their maximum (m_dwMaxCountWhenLow) and writes them at once.
    void ResetLowCount();

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwEjectLength{};
    bool m_bCutWhenEject{};
    bool m_bSendMediaTakenEvent{};
    DWORD m_dwWaitMediaTakenTime{};
    bool m_bIsFullCut{};
    DWORD m_dwMaxCountWhenLow{};
    DWORD m_dwCurCountWhenLow{};
    DWORD m_dwPrintDensity{};
    DWORD m_dwPrintSpeed{};
    bool m_bFixedLineSpace{};
};
