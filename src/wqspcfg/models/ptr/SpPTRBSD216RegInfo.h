#pragma once

#include "wqspcfg/classes/PTRRegInfo.h"

// The BSD216 document scanner with retain bin, served as a printer.
class WQSPCFG_API CSpPTRBSD216RegInfo : public CPTRRegInfo
{
  public:
    CSpPTRBSD216RegInfo(const CString& strName, bool bPhysicalName);
    ~CSpPTRBSD216RegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwMaxRetain{};
    DWORD m_dwHighRetainBin{};
    DWORD m_dwRetainBinCount{};
    DWORD m_dwStartWidth{};
    DWORD m_dwEndWidth{};
    DWORD m_dwStartLength{};
    DWORD m_dwEndLength{};
    bool m_bIsUseRetainBinSensor{};
    bool m_bIsUseRetractSensor{};
    DWORD m_dwRetraIsJamPaperOutTheTimes{};
    DWORD m_dwDistinguishType{};
    DWORD m_dwSetDPI{};
    DWORD m_dwSetFrontFlag{};
    bool m_bEjectWhenIsEntering{};
    DWORD m_dwCombineMode{};
    DWORD m_dwScanAreaModal{};
    DWORD m_dwRotation{};
};
