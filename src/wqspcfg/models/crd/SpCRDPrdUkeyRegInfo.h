#pragma once

#include "wqspcfg/classes/CRDRegInfo.h"

// A USB-key dispenser behind a device driver module.
class WQSPCFG_API CSpCRDPrdUkeyRegInfo : public CCRDRegInfo
{
  public:
    CSpCRDPrdUkeyRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpCRDPrdUkeyRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    CString m_strDN_UKEY_MOTOR;
    DWORD m_dwPowerOnOption{};
    DWORD m_dwPowerOffOption{};
    DWORD m_dwOpenOption{};
    DWORD m_dwTimesToTryWhenFail{};
    bool m_bIDCCompound{};
    CString m_strReadBarCodeCmd;
    bool m_bRDataTrack3{};
    CString m_strIssueUkeyCmd;
    bool m_bRetainHighToOkStatus{};
    bool m_bRawDataNullToTrack1{};
    bool m_bWriteDataFrontToTrack1{};
    DWORD m_dwPreDispenseUkeyType{};
    DWORD m_dwPolicyOfExtraSuppBinST{};
    bool m_bResetAndAganin{};
    DWORD m_dwMaxSendUkeyCount{};
    bool m_bAllowDisWithRetainBinPhyFull{};
    bool m_bAllowDisWithRetainBinLogicFull{};
    bool m_bAllowDisWithCountLogicEmpty{};
};
