#pragma once

#include "wqspcfg/classes/IDCRegInfo.h"

// The NewLand barcode scanner, served as a card reader.
class WQSPCFG_API CSpIDCNewLandRegInfo : public CIDCRegInfo
{
  public:
    CSpIDCNewLandRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpIDCNewLandRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwDevType{};
    DWORD m_dwPort{};
    DWORD m_dwBaudRate{};
    DWORD m_dwGetdataTimes{};
};
