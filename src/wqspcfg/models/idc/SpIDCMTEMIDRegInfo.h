#pragma once

#include "wqspcfg/classes/IDCRegInfo.h"

// The MT EMID card reader.
class WQSPCFG_API CSpIDCMTEMIDRegInfo : public CIDCRegInfo
{
  public:
    CSpIDCMTEMIDRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpIDCMTEMIDRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwBaudRate{};
    DWORD m_dwPort{};
    DWORD m_dwType{};
};
