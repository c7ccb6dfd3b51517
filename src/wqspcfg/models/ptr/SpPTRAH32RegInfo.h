#pragma once

#include "wqspcfg/models/shared/RasterReceiptPrinter.h"

// The AH32 receipt printer.
class WQSPCFG_API CSpPTRAH32RegInfo : public wqspcfg::RasterReceiptPrinter
{
  public:
    CSpPTRAH32RegInfo(const CString& strName, bool bPhysicalName);
    ~CSpPTRAH32RegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    bool m_bSendMediaTakenEvent{};
    DWORD m_dwWaitMediaTakenTime{};
    DWORD m_dwPrintIntervalTime{};
    DWORD m_dwPolicyOfLineSpace{};
    bool m_bUseOneFormPrintManyKindsReceipt{};
    DWORD m_dwAdjustPosY{};
    DWORD m_dwRawDataStyle{};
    bool m_bIgnoreInvalidData{};
};
