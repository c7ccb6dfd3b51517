#pragma once

#include "wqspcfg/classes/PINRegInfo.h"
#include "wqspcfg/parts/EllipseParameters.h"
#include "wqspcfg/parts/VersionedKeypad.h"

// The PADEXE keypad, with SM2 curve parameters and checks that depend on the version of the keypad.
class WQSPCFG_API CSpPINPADEXERegInfo : public CPINRegInfo,
                                        public wqspcfg::VersionedKeypad,
                                        public wqspcfg::EllipseParameters
{
  public:
    CSpPINPADEXERegInfo(const CString& strName, bool bPhysicalName);
    ~CSpPINPADEXERegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwMac99{};
    bool m_bClearToBackspace{};
    bool m_bIsFDKBelongEpp{};
    bool m_bDelDuplicateKEK{};
    bool m_bDelDuplicateKEKSM{};
    bool m_bStatEnInit{};
    DWORD m_dwFirmwareVersionMode{};
    DWORD m_dwModelReserved[128] = {};
};
