#pragma once

#include "wqspcfg/classes/CRDRegInfo.h"

// The K1503 dispenser of USB keys (Kbao) and tokens (Ktoken).
class WQSPCFG_API CSpCRDUKeyK1503RegInfo : public CCRDRegInfo
{
  public:
    CSpCRDUKeyK1503RegInfo(const CString& strName, bool bPhysicalName);
    ~CSpCRDUKeyK1503RegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwPort{};
    DWORD m_dwBaudRate{};
    DWORD m_dwUsefulSupplyBinCounter{};
    DWORD m_dwRetainBinCounter{};
    DWORD m_dwSupplyBinCounter{};
    DWORD m_dwPowerOnOption{};
    DWORD m_dwUsefulKbaoBinCounter{};
    DWORD m_dwUserfulKtokenBinCounter{};
    DWORD m_dwKbaoCounter{};
    DWORD m_dwABinKbaoCounter{};
    DWORD m_dwKtokenCounter{};
    DWORD m_dwAShoveDistance{};
    DWORD m_dwBShoveDistance{};
    DWORD m_dwCShoveDistance{};
    bool m_bResetAndAganin{};
    DWORD m_dwSupplyBinHigh{};
    DWORD m_dwMaxSupplyBinCount{};
    DWORD m_dwMaxSendUkeyCount{};
    DWORD m_dwSensorHigh{};
    bool m_bShowPhyStatus{};
    bool m_bReadKbaoMsg{};
    bool m_bReadKtokenMsg{};
    bool m_bSaveKbaoCounter{};
    DWORD m_dwDevType{};
    DWORD m_dwCcbStmType{};
};
