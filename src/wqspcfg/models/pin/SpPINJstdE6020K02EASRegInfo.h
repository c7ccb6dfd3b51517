#pragma once

#include "wqspcfg/classes/PINRegInfo.h"
#include "wqspcfg/parts/JstdKeypad.h"

// The Jstd E6020K02EAS keypad, which has page-up and page-down keys.
class WQSPCFG_API CSpPINJstdE6020K02EASRegInfo : public CPINRegInfo, public wqspcfg::JstdKeypad
{
  public:
    CSpPINJstdE6020K02EASRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpPINJstdE6020K02EASRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    bool m_bAtiveStillDown{};
    DWORD m_dwPort{};
    DWORD m_dwBaudRate{};
    DWORD m_dwAtiveClearAndBaskSpaceOption{};
    DWORD m_dwPageUpAsXFSFK{};
    DWORD m_dwPageDownAsXFSFK{};
    DWORD m_dwModelReserved[128] = {};
};
