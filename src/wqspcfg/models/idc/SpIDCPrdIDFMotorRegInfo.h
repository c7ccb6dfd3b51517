#pragma once

#include "wqspcfg/models/shared/CardReaderParts.h"

// A motorised identity card reader behind a device driver module.
class WQSPCFG_API CSpIDCPrdIDFMotorRegInfo : public wqspcfg::IdentityCardReader
{
  public:
    CSpIDCPrdIDFMotorRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpIDCPrdIDFMotorRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    CString m_strDN_IDF_MOTOR;
    DWORD m_dwOpenAction{};
    DWORD m_dwReadTracks{};
    bool m_bIsPermitRetain{};
    bool m_bIsSupRetain{};
    DWORD m_dwWidthOfFrontBack{};
    DWORD m_dwHeightOfFrontBack{};
    bool m_bIsEjectAfterScan{};
    DWORD m_dwEjectAfterScanTime{}; // seconds
};
