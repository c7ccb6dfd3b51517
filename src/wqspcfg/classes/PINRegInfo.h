// Settings of PIN pads (XFS class PIN).
#pragma once

#include "wqspcfg/core/RegInfo.h"
#include "wqspcfg/platform/framework/FrameworkTypes.h"

// The keyboard's layout, the handling of keys, and what the encrypting keypad checks and calculates with.
//
// With IsAutomaticForceUseSM 1, Load itself writes ForceUseSM: what the bank's application asks for in the key
// "SOFTWARE\XFS\SERVICE_PROVIDERS\CGB_Encryptor".
class WQSPCFG_API CPINRegInfo : public CRegInfo
{
  public:
    CPINRegInfo(const CString& strName, bool bPhysicalName);
    ~CPINRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    // Both maps are as the registry has them after Load, and have the default layout where their key cannot be read.
    CMapStringToString m_mapKeyboardMapping; // physical key code to the name of the logical key
    CMapStringToString m_mapFDKPosition;     // function key beside the screen to "x,y" in percent of the screen
    CString m_strKeyPress;
    DWORD m_dwBuffEnter{};
    DWORD m_dwEarlyTerminateFDK{};
    DWORD m_dwEarlyTerminateEnter{};
    DWORD m_dwMultiZeroOverMaxLen{};
    DWORD m_dwCryptPadSemi{};
    bool m_bCheckActiveKeyNone{};
    DWORD m_dwGetDataBuffFDK{};
    DWORD m_dwBankID{};
    DWORD m_dwPaddingCheck{};
    DWORD m_dwCheckInputParam{};
    DWORD m_dwCryptDataKeyUsage{};
    DWORD m_dwUseBackspaceAsPCInGetPin{};
    DWORD m_dwReserved[128] = {};
    DWORD m_dwCheckKEKUse{};
    DWORD m_dwCanQueryDelKey{};
    DWORD m_dwImportExAsSM{};
    DWORD m_dwAllowNonCryptKey{};
    DWORD m_dwIsAutomaticForceUseSM{};
    bool m_bForceUseSM{};
    DWORD m_dwSMUseValue{};
    DWORD m_dwSM4ECBValue{};
    DWORD m_dwSM4CBCValue{};
    DWORD m_dwSM4MacValue{};
    DWORD m_dwSM4MacLen{}; // bytes
    bool m_bCheckPinLength{};
    DWORD m_dwUseProtectKey{};
    CString m_strProtectKey; // in clear text
    DWORD m_dwCertificateHashAlgorithm{};
    DWORD m_dwKeyVectorMode{};
    DWORD m_dwKeyVerifyMode{};
    DWORD m_dwKeyComprise{};
    DWORD m_dwDerivationAlgorithms{};
    DWORD m_dwPresentationAlgorithms{};
    DWORD m_dwIDKey{};
};
