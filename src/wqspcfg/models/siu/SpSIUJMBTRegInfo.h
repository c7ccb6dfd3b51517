#pragma once

#include "wqspcfg/classes/SIURegInfo.h"

// The JMBT controller board: eight lights, four switches, and a second serial controller for the screens.
//
// A switch whose polarity is missing becomes port 0. Save leaves the index and the polarity of such a switch as the
// registry has them, until one of the two is changed.
class WQSPCFG_API CSpSIUJMBTRegInfo : public CSIURegInfo
{
  public:
    CSpSIUJMBTRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpSIUJMBTRegInfo() override;
    // Writes an error line for each missing value, and is true whatever is missing.
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwPort{};
    DWORD m_dwBaudRate{};
    DWORD m_dwPortScr{};
    DWORD m_dwBaudrateScr{};
    DWORD m_dwCoolingTime{};
    DWORD m_dwBSTIsNotUsed{};
    // Lights 1 to 8 and switches 1 to 4, each at its number less one; index -1: not used.
    DWORD m_dwLight[8]{};
    DWORD m_dwALL_Lights_OFF_Pol{};
    DWORD m_dwLight_OFF_Pol[8]{};
    DWORD m_dwALL_Lights_ON_Pol{};
    DWORD m_dwLight_ON_Pol[8]{};
    DWORD m_dwSwitch[4]{};
    DWORD m_dwSwitch_Pol[4]{};
    CString m_strSwitch_ToType[4];
    // Load did not find the polarity of this switch, and left it at this one.
    bool m_bSwitch_PolMissing[4]{};
    DWORD m_dwSwitch_PolKept[4]{};
};
