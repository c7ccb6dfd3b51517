#pragma once

#include "wqspcfg/models/shared/BlackMarkReceiptPrinter.h"

// The POS1900 receipt printer.
class WQSPCFG_API CSpPTRGHPOS1900RegInfo : public wqspcfg::BlackMarkReceiptPrinter
{
  public:
    CSpPTRGHPOS1900RegInfo(const CString& strName, bool bPhysicalName);
    ~CSpPTRGHPOS1900RegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    // Takes one off the receipts left (m_dwCurLastCount), not below 0, and writes them at once.
    void DescCurLowCount();

    static const wqspcfg::Table& Settings() noexcept;

    bool m_bBidirectionalPtr{};
    bool m_bCutAll{};
    bool m_bUseHalfPlot{};
    bool m_bEjectBeforeCut{};
    DWORD m_dwFeedLineTimeOut{};
    bool m_bResetSuccessWhenPaperOut{};
    bool m_bOffsetValid{};
    bool m_bIsSendMediaTakenEvent{};
    DWORD m_dwCurLastCount{};
    bool m_bUseCountWhenLow{};
};
