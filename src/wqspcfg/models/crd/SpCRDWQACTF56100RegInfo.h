#pragma once

#include "wqspcfg/models/shared/CardDispenserParts.h"

// The ACT F5-6100 card dispenser.
class WQSPCFG_API CSpCRDWQACTF56100RegInfo : public wqspcfg::ThreeBinDispenser
{
  public:
    CSpCRDWQACTF56100RegInfo(const CString& strName, bool bPhysicalName);
    ~CSpCRDWQACTF56100RegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwPort{};
    DWORD m_dwBaudRate{};
    CString m_strErrorCodeToHardwareError;
    DWORD m_dwReturnHardErrWhenSuppBinMiss{};
    DWORD m_dwChangeIDCStatusToBusy{};
    bool m_bMoveTransPortToSuppBin1WhenRetain{};
    bool m_bNeedSupportMediaLatched{};
    CString m_strLogicalNameOfIDCReader;
    bool m_bShutterFailNeedRetainWhenEjectCard{};
    bool m_bCheckShutterOpenHwErr{};
    bool m_bIsSupTEMPORARY{};
    DWORD m_dwNumRetainBin2{};
    DWORD m_dwRetainBin2Count{};
    DWORD m_dwRetainBin2High{};
    DWORD m_dwRetainBin2Full{};
};
