#pragma once

#include "wqspcfg/models/shared/CardReaderParts.h"

// The DC EMID card reader.
class WQSPCFG_API CSpIDCDCEMIDRegInfo : public wqspcfg::DcReader
{
  public:
    CSpIDCDCEMIDRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpIDCDCEMIDRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwHandleRepeatCardPolicy{};
    bool m_bCheckCardInsertOfIdle{};
    DWORD m_dwReadTracks{};
};
