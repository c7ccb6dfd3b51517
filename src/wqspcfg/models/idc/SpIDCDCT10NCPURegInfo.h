#pragma once

#include "wqspcfg/models/shared/CardReaderParts.h"

// The CPU card reader of the DC T10N.
class WQSPCFG_API CSpIDCDCT10NCPURegInfo : public wqspcfg::DcReader
{
  public:
    CSpIDCDCT10NCPURegInfo(const CString& strName, bool bPhysicalName);
    ~CSpIDCDCT10NCPURegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwHandleRepeatCardPolicy{};
    bool m_bCheckCardInsertOfIdle{};
    bool m_bTranformIC2Hex{};
};
