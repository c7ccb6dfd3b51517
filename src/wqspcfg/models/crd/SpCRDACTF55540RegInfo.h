#pragma once

#include "wqspcfg/models/shared/CardDispenserParts.h"

// The ACT F5-5540 card dispenser.
class WQSPCFG_API CSpCRDACTF55540RegInfo : public wqspcfg::ThreeBinDispenser
{
  public:
    CSpCRDACTF55540RegInfo(const CString& strName, bool bPhysicalName);
    ~CSpCRDACTF55540RegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwPort5540{};
    DWORD m_dwBaudRate5540{};
    bool m_bNeedSupportMediaLatched{};
    CString m_strLogicalNameOfIDCReader;
    DWORD m_dwSendBin1Param{};
    DWORD m_dwSendBin2Param{};
    DWORD m_dwWaitDispenseCardTime{};
    bool m_bCanCacelOrTimeOutAfterDispense{};
    DWORD m_dwWaitBackInsertTime{};
    DWORD m_dwSendBin1CardAgainTime{};
    DWORD m_dwSendBin2CardAgainTime{};
    DWORD m_dwCardHookPosition{};
    DWORD m_dwRetainBinStatus{};
    DWORD m_dwAfterDispensBin1WaitTime{};
    DWORD m_dwAfterDispensBin2WaitTime{};
    bool m_bUseLogicCountOfRetainBinPhyFull{};
};
