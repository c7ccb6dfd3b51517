#pragma once

#include "wqspcfg/models/shared/PagePrinter.h"

// The FX P355db page printer with stamping unit and paper output transport.
class WQSPCFG_API CSpPTRFXP355dbRegInfo : public wqspcfg::PagePrinter
{
  public:
    CSpPTRFXP355dbRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpPTRFXP355dbRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwTonerStatusType{};
    DWORD m_dwRawDataFilePathStyle{};
    DWORD m_dwPrintEndTimeOut{};
    DWORD m_dwDeviceType{};
    DWORD m_dwStampType{};
    DWORD m_dwCountOfTrays{};
    bool m_bSendExeePresented{};
    bool m_bWaitPrintJob{};
    DWORD m_dwPaperStatusStartIndex{};
};
