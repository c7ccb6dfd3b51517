#pragma once

#include "wqspcfg/classes/PINRegInfo.h"
#include "wqspcfg/parts/EllipseParameters.h"

// The product line's encrypting keypad, which is driven by the manufacturer's driver.
class WQSPCFG_API CSpPINPrdEppRegInfo : public CPINRegInfo, public wqspcfg::EllipseParameters
{
  public:
    CSpPINPrdEppRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpPINPrdEppRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    CString m_strDN_PIN_EPP;
    DWORD m_dwPostWin32PCKeyEventInGetData{};
    DWORD m_dwPostWin32PCKeyEventInGetPin{};
    CString m_strDisabledPCKeyEventOfKey;
    bool m_bEnableIdlePCKeyEvent{};
    DWORD m_dwKeyPressInteval{};
    DWORD m_dwAtiveClearAndBaskSpaceOption{};
    DWORD m_dwPageUpToXFSKey{};
    DWORD m_dwPageDownToXFSKey{};
    DWORD m_dwSPaceToXFSKey{};
    bool m_bReadOneKeyToMaxForceEnter{};
    DWORD m_dwReportErrOnPressMultiKey{};
    DWORD m_dwReportLongKeyPressErr{};
    DWORD m_dwMacType{};
    DWORD m_dwModelReserved[128] = {};
};
