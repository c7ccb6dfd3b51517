#pragma once

#include "wqspcfg/classes/PINRegInfo.h"
#include "wqspcfg/parts/JstdKeypad.h"

// The Jstd E6060 keypad.
class WQSPCFG_API CSpPINJstdE6060RegInfo : public CPINRegInfo, public wqspcfg::JstdKeypad
{
  public:
    CSpPINJstdE6060RegInfo(const CString& strName, bool bPhysicalName);
    ~CSpPINJstdE6060RegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwPort{};
    DWORD m_dwBaudRate{};
    DWORD m_dwModelReserved[128] = {};
};
