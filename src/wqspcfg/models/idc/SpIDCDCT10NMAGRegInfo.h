#pragma once

#include "wqspcfg/models/shared/CardReaderParts.h"

// The magnetic-stripe card reader of the DC T10N.
class WQSPCFG_API CSpIDCDCT10NMAGRegInfo : public wqspcfg::DcReader
{
  public:
    CSpIDCDCT10NMAGRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpIDCDCT10NMAGRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwTimeOutOfReadMagCard{}; // seconds
};
