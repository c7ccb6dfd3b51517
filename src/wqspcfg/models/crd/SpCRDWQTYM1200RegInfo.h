#pragma once

#include "wqspcfg/models/shared/CardDispenserParts.h"

// The Tianyi 1200 card dispenser, alone or (device type 2200) with a Sankyo dispenser.
class WQSPCFG_API CSpCRDWQTYM1200RegInfo : public wqspcfg::TwoBinDispenser
{
  public:
    CSpCRDWQTYM1200RegInfo(const CString& strName, bool bPhysicalName);
    ~CSpCRDWQTYM1200RegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwPort{};
    DWORD m_dwBaudRate{};
    CString m_strBluetoothName;
    CString m_strBluetoothPassWord;
    DWORD m_dwBluetoothOption{};
    DWORD m_dwPowerOnOption{};
    DWORD m_dwCloseOption{};
    DWORD m_dwPowerOffOption{};
    bool m_bAllowRetainOfRetainBinErr{};
    DWORD m_dwReConnectSuccessOption{};
    DWORD m_dwDevType{};
    CString m_strLogicalNameOfIDCReader;
    bool m_bForceChipInReadRawDataParam{};
    bool m_bErrorWhenEmptyDispenseBin{};
    bool m_bSupplyBinMissing{};
    bool m_bCheckRetainBinDeviceFull{};
    DWORD m_dwMoveCardOptionWhenCardHookClear{};
    DWORD m_dwMoveCardOptionWhenTransPortErr{};
    DWORD m_dwSpdbfromOneWhenNotChooseSupplyBin{};
    DWORD m_dwReturnHardErrWhenSuppBinMiss{};
    DWORD m_dwChangeIDCStatusToBusy{};
    DWORD m_dwAllowDispenseWhenSupplyBinErr{};
};
