#pragma once

#include "wqspcfg/classes/IDCRegInfo.h"

// The D5 contactless (NFC) card reader.
class WQSPCFG_API CSpIDCD5USTNFCRegInfo : public CIDCRegInfo
{
  public:
    CSpIDCD5USTNFCRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpIDCD5USTNFCRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    CString m_strCardNameOfConn;
    bool m_bHandleRepeatCard{};
    bool m_bRtnInvalidMediaOfRepeatCard{};
    bool m_bSupportChipPower{};
    bool m_bCheckCardInsertOfIdle{};
};
