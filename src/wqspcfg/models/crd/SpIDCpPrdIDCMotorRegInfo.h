#pragma once

#include "wqspcfg/classes/CRDRegInfo.h"

// A motorised card reader with a dispenser behind device driver modules, run as a card dispenser.
class WQSPCFG_API CSpIDCpPrdIDCMotorRegInfo : public CCRDRegInfo
{
  public:
    CSpIDCpPrdIDCMotorRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpIDCpPrdIDCMotorRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    CString m_strDN_IDC_MOTOR;
    CString m_strDN_CRD_MOTOR;
    DWORD m_dwAdaptor{};
    DWORD m_dwPowerOnOption{};
    DWORD m_dwPowerOffOption{};
    DWORD m_dwMoveTansPortCardOptionWhenRest{};
    DWORD m_dwMoveTansPortCardOptionWhenDispense{};
    DWORD m_dwStatusOptionWhenCardInTansPort{};
    DWORD m_dwStatusOptionWhenDispenserStop{};
    DWORD m_dwISCDispenseCardParam{};
};
