#pragma once

#include "wqspcfg/classes/PINRegInfo.h"

// The PADEXE keypad, with SM2 curve parameters and checks that depend on the version of the keypad.
class WQSPCFG_API CSpPINPADEXERegInfo : public CPINRegInfo
{
  public:
    CSpPINPADEXERegInfo(const CString& strName, bool bPhysicalName);
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwMac99;
    bool m_bClearToBackspace;
    DWORD m_dwPort;
    DWORD m_dwHardware;
    bool m_bEnableBackSpace;
    bool m_bBackspaceToHelp;
    DWORD m_dwUseDesignatedName;
    DWORD m_dwReportErrOnPressMultiKey;
    DWORD m_dwMaxEnDeCryptBlockLen;
    DWORD m_dwKeyPressInteval;
    DWORD m_dwReportLongKeyPressErr;
    DWORD m_dwFindRegKeyIndexByUse;
    DWORD m_dwMinPinLength;
    bool m_bIsFDKBelongEpp;
    bool m_bDelDuplicateKEK;
    bool m_bDelDuplicateKEKSM;
    CString m_strEllipseParamP;
    CString m_strEllipseParamA;
    CString m_strEllipseParamB;
    CString m_strEllipseParamN;
    CString m_strEllipseParamXg;
    CString m_strEllipseParamYg;
    bool m_bStatEnInit;
    DWORD m_dwFirmwareVersionMode;
    DWORD m_dwModelReserved[128] = {};
};
