#pragma once

#include "wqspcfg/classes/IDCRegInfo.h"

// The identity card reader of the DC T10N.
class WQSPCFG_API CSpIDCDCT10NIDFRegInfo : public CIDCRegInfo
{
  public:
    CSpIDCDCT10NIDFRegInfo(const CString& strName, bool bPhysicalName);
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwBaudRate;
    DWORD m_dwPort;
    DWORD m_dwCpuCardType;
    DWORD m_dwTimesOfGetStIfSwitchLed;
    CString m_strIDCardImagePath;
    CString m_strIDCardImagePathBeCopyed;
    bool m_bIsUnContactFailed;
    bool m_bGetImageFrontAndBack;
    CString m_strImageFrontPath;
    CString m_strImageBackPath;
    bool m_bCheckCardInsertOfIdle;
};
