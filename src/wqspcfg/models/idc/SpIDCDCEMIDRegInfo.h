#pragma once

#include "wqspcfg/classes/IDCRegInfo.h"

// The DC EMID card reader.
class WQSPCFG_API CSpIDCDCEMIDRegInfo : public CIDCRegInfo
{
  public:
    CSpIDCDCEMIDRegInfo(const CString& strName, bool bPhysicalName);
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwBaudRate;
    DWORD m_dwPort;
    DWORD m_dwCpuCardType;
    DWORD m_dwTimesOfGetStIfSwitchLed;
    DWORD m_dwHandleRepeatCardPolicy;
    bool m_bCheckCardInsertOfIdle;
    DWORD m_dwReadTracks;
};
