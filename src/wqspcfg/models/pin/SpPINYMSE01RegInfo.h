#pragma once

#include "wqspcfg/classes/PINRegInfo.h"

// The YMSE01 keypad, with SM2 curve parameters and checks that depend on the version of the keypad.
// The capability values of the model hide those of the class, which come from the Capabilities key.
class WQSPCFG_API CSpPINYMSE01RegInfo : public CPINRegInfo
{
  public:
    CSpPINYMSE01RegInfo(const CString& strName, bool bPhysicalName);
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwMac99;
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
    bool m_bDelDuplicateKEK;
    bool m_bDelDuplicateKEKSM;
    bool m_bClearToBackspace;
    DWORD m_dwPostWin32PCKeyEventInGetData;
    DWORD m_dwPostWin32PCKeyEventInGetPin;
    CString m_strDisabledPCKeyEventOfKey;
    CString m_strEllipseParamP;
    CString m_strEllipseParamA;
    CString m_strEllipseParamB;
    CString m_strEllipseParamN;
    CString m_strEllipseParamXg;
    CString m_strEllipseParamYg;
    DWORD m_dwAtiveClearAndBaskSpaceOption;
    DWORD m_dwDefaultMaxPinLength;
    DWORD m_dwDerivationAlgorithms;
    DWORD m_dwPresentationAlgorithms;
    DWORD m_dwIDKey;
    bool m_bEnableIdlePCKeyEvent;
    DWORD m_dwModelReserved[128] = {};
};
