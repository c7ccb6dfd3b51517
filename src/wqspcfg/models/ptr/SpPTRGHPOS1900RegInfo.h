#pragma once

#include "wqspcfg/classes/PTRRegInfo.h"

// The POS1900 receipt printer.
class WQSPCFG_API CSpPTRGHPOS1900RegInfo : public CPTRRegInfo
{
  public:
    CSpPTRGHPOS1900RegInfo(const CString& strName, bool bPhysicalName);
    bool Load(CLog* pLog) override;
    void Save() override;

    // Takes one off the receipts left (m_dwCurLastCount), not below 0, and writes them at once.
    void DescCurLowCount();

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwPort;
    DWORD m_dwBaudRate;
    bool m_bIsUseBlackMark;
    DWORD m_dwRawDataStyle;
    DWORD m_dwLineSpace;
    DWORD m_dwLeftMargin;
    DWORD m_dwCutPosition;
    DWORD m_dwPrintPos;
    DWORD m_dwEnCharSpace;
    DWORD m_dwChCharSpaceLeft;
    DWORD m_dwChCharSpaceRight;
    DWORD m_dwPrintTimeOut;
    bool m_bBidirectionalPtr;
    bool m_bCutAll;
    bool m_bUseHalfPlot;
    bool m_bEjectBeforeCut;
    DWORD m_dwFeedLineTimeOut;
    bool m_bResetSuccessWhenPaperOut;
    bool m_bOffsetValid;
    bool m_bIsSendMediaTakenEvent;
    DWORD m_dwCurLastCount;
    bool m_bUseCountWhenLow;
};
