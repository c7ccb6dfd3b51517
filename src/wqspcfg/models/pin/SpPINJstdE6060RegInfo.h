#pragma once

#include "wqspcfg/classes/PINRegInfo.h"

// The Jstd E6060 keypad.
class WQSPCFG_API CSpPINJstdE6060RegInfo : public CPINRegInfo
{
  public:
    CSpPINJstdE6060RegInfo(const CString& strName, bool bPhysicalName);
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwMacType;
    bool m_bUseClearBtnAsBackspaceBtnInGetData;
    bool m_bUseClearBtnAsBackspaceBtnInGetPin;
    DWORD m_dwPostWin32PCKeyEventInGetData;
    DWORD m_dwPostWin32PCKeyEventInGetPin;
    CString m_strDisabledPCKeyEventOfKey;
    DWORD m_dwPort;
    DWORD m_dwBaudRate;
    DWORD m_dwModelReserved[128] = {};
};
