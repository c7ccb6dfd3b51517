#pragma once

#include "wqspcfg/models/shared/CardReaderParts.h"

// A contactless identity card reader behind a device driver module.
class WQSPCFG_API CSpIDCPrdIDFContactlessRegInfo : public wqspcfg::IdentityCardReader
{
  public:
    CSpIDCPrdIDFContactlessRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpIDCPrdIDFContactlessRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    CString m_strDN_IDF_CONTACTLESS;
    DWORD m_dwReadTracks{};
    DWORD m_dwWidthOfFrontBack{};
    DWORD m_dwHeightOfFrontBack{};
    bool m_bIsExeComReturnFailofContactless{};
    bool m_bIsUpdateMediaInOnIdle{};
};
