#pragma once

#include "wqspcfg/classes/PINRegInfo.h"
#include "wqspcfg/parts/EllipseParameters.h"
#include "wqspcfg/parts/VersionedKeypad.h"

// The YMSE01 keypad, with SM2 curve parameters and checks that depend on the version of the keypad.
// The capability values of the model hide those of the class, which come from the Capabilities key.
class WQSPCFG_API CSpPINYMSE01RegInfo : public CPINRegInfo,
                                        public wqspcfg::VersionedKeypad,
                                        public wqspcfg::EllipseParameters
{
  public:
    CSpPINYMSE01RegInfo(const CString& strName, bool bPhysicalName);
    ~CSpPINYMSE01RegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwMac99{};
    bool m_bDelDuplicateKEK{};
    bool m_bDelDuplicateKEKSM{};
    bool m_bClearToBackspace{};
    DWORD m_dwPostWin32PCKeyEventInGetData{};
    DWORD m_dwPostWin32PCKeyEventInGetPin{};
    CString m_strDisabledPCKeyEventOfKey;
    DWORD m_dwAtiveClearAndBaskSpaceOption{};
    DWORD m_dwDefaultMaxPinLength{};
    DWORD m_dwDerivationAlgorithms{};
    DWORD m_dwPresentationAlgorithms{};
    DWORD m_dwIDKey{};
    bool m_bEnableIdlePCKeyEvent{};
    DWORD m_dwModelReserved[128] = {};
};
