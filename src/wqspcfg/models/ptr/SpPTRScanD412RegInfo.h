#pragma once

#include "wqspcfg/classes/PTRRegInfo.h"

// The D412 document scanner, served as a printer.
class WQSPCFG_API CSpPTRScanD412RegInfo : public CPTRRegInfo
{
  public:
    CSpPTRScanD412RegInfo(const CString& strName, bool bPhysicalName);
    ~CSpPTRScanD412RegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    // Add one to the number of items retracted, or set it to 0, and write it at once.
    void AddCurCount();
    void ResetZeroCount();

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwRetractCount{};
    DWORD m_dwMaxRetractCount{};
    bool m_bMustBeRetract{};
    bool m_bHideErrA7{};
    bool m_bMustScanColorFULL{};
    bool m_bMustScanJPG{};
    DWORD m_dwScanResolution{};
    DWORD m_dwScanHight{};
    DWORD m_dwInsertMediaTryTimtOut{};
};
