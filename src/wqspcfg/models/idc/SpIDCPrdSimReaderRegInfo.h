#pragma once

#include "wqspcfg/classes/IDCRegInfo.h"

// A contactless card reader behind a device driver module.
class WQSPCFG_API CSpIDCPrdSimReaderRegInfo : public CIDCRegInfo
{
  public:
    CSpIDCPrdSimReaderRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpIDCPrdSimReaderRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    CString m_strDN_IDC_CONTACTLESS;
    bool m_bCheckCardInsertOfIdle{};
    DWORD m_dwFindCardPolicy{};
    DWORD m_dwHandleRepeatCardPolicy{};
    bool m_bSetMediaNotPresent{};
};
