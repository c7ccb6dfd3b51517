#pragma once

#include "wqspcfg/classes/PINRegInfo.h"

// The XZSE 8098B keypad.
// The capability values of the model hide those of the class, which come from the Capabilities key.
// Load and Save are private: they are called through CPINRegInfo.
class WQSPCFG_API CSpPINXZSE8098BRegInfo : public CPINRegInfo
{
  public:
    CSpPINXZSE8098BRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpPINXZSE8098BRegInfo() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwPostWin32PCKeyEventInGetData{};
    DWORD m_dwPostWin32PCKeyEventInGetPin{};
    CString m_strDisabledPCKeyEventOfKey;
    DWORD m_dwPort{};
    DWORD m_dwBaudRate{};
    DWORD m_dwMachineType{};
    DWORD m_dwCrytDESECBtoSM{};
    DWORD m_dwCrytDESCBCtoSM{};
    DWORD m_dwPressKeyTimeOut{};
    DWORD m_dwMacType{};
    DWORD m_dwAtiveClearAndBaskSpaceOption{};
    DWORD m_dwDerivationAlgorithms{};
    DWORD m_dwPresentationAlgorithms{};
    DWORD m_dwIDKey{};
    bool m_bAtivePageUpPageDownInGetData{};
    bool m_bEarlyTerminateEnterToMaxLen{};
    bool m_bPageUpToFDK{};
    DWORD m_dwPageUpToXFSKey{};
    bool m_bPageDownToFDK{};
    DWORD m_dwPageDownToXFSKey{};
    bool m_bLoadKeyEncKeyOfCryptCmd{};
    bool m_bReadOneKeyToMaxForceEnter{};
    DWORD m_dwCBHBSM{};
    bool m_bUseDefaultRSAPublicAndPrivteKey{};
    bool m_bEnableIdlePCKeyEvent{};
    bool m_bEnableXZlog{};
    bool m_bCheckBaudRate{};
    DWORD m_dwAlgorithms{};
    bool m_bConnectFDKBoard{};
    DWORD m_dwModelReserved[128] = {};

  private:
    bool Load(CLog* pLog) override;
    void Save() override;
};
