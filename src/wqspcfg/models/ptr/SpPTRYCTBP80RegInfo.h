#pragma once

#include "wqspcfg/classes/PTRRegInfo.h"

// The BP80 receipt printer, on Bluetooth.
class WQSPCFG_API CSpPTRYCTBP80RegInfo : public CPTRRegInfo
{
  public:
    CSpPTRYCTBP80RegInfo(const CString& strName, bool bPhysicalName);
    ~CSpPTRYCTBP80RegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    CString m_strBluetoothName;
    CString m_strBluetoothPassword;
    DWORD m_dwRawDataStyle{};
    DWORD m_dwFeedBeforePrint{};
    DWORD m_dwFeedAfterPrint{};
    DWORD m_dwPrintIntervalTime{};
    bool m_bSendFieldWarnningEvent{};
    DWORD m_dwLineSpace{};
    DWORD m_dwWordSpace{};
};
