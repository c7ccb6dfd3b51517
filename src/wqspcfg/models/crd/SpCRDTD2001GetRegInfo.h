#pragma once

#include "wqspcfg/classes/CRDRegInfo.h"

// The TD2001 card dispenser, driven over Bluetooth.
class WQSPCFG_API CSpCRDTD2001GetRegInfo : public CCRDRegInfo
{
  public:
    CSpCRDTD2001GetRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpCRDTD2001GetRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    CString m_strBluetoothPassWord;
    CString m_strBluetoothTypicalityName;
    CString m_strCurrentCardBoxName;
    DWORD m_dwWaitCardTime{};
    DWORD m_dwIdleRefreshStatusOption{};
    bool m_bRemoveDispenseCardUnit{};
    DWORD m_dwMaxCount{};
};
