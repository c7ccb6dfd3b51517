#pragma once

#include "wqspcfg/classes/PTRRegInfo.h"

// The MP512 receipt printer.
class WQSPCFG_API CSpPTRMP512RegInfo : public CPTRRegInfo
{
  public:
    CSpPTRMP512RegInfo(const CString& strName, bool bPhysicalName);
    ~CSpPTRMP512RegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    // Puts the settings of this model back to their defaults, in the object only; Save makes it last.
    void ResetValue();
    // Takes one off the receipts left, which this model keeps in the value CurLastCount of its device key only, not
    // below 0, and writes them at once. A terminal that does not keep the value stays without it.
    void DescCurLowCount();

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwPort{};
    DWORD m_dwBaudRate{};
    CString m_strPtrName;
    DWORD m_dwPageHeight{};
    DWORD m_dwLinesPerPage{};
    DWORD m_dwRealWidth{};
    DWORD m_dwRealHeight{};
    bool m_bWTwice{};
    bool m_bHTwice{};
    bool m_bUnderLine{};
    bool m_b7X7{};
    bool m_bCutByBlack{};
    bool m_bCutALL{};
    bool m_bNeedRotate{};
    DWORD m_dwPrintAdapter{};
    DWORD m_dwLinesBetween{};
    bool m_bIsUseImageStretch{};
    DWORD m_dwPrintEndWaitTime{};
    DWORD m_dwStartPrintWaitTimes{};
    DWORD m_dwRawDataAddLineCount{};
};
