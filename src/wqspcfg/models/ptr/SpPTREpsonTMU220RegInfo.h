#pragma once

#include "wqspcfg/classes/PTRRegInfo.h"

// The Epson TM-U220 receipt printer.
class WQSPCFG_API CSpPTREpsonTMU220RegInfo : public CPTRRegInfo
{
  public:
    CSpPTREpsonTMU220RegInfo(const CString& strName, bool bPhysicalName);
    bool Load(CLog* pLog) override;
    void Save() override;

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
};
