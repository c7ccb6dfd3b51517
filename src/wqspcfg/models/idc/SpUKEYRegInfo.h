#pragma once

#include "wqspcfg/classes/IDCRegInfo.h"

// A reader of USB keys.
class WQSPCFG_API CSpUKEYRegInfo : public CIDCRegInfo
{
  public:
    CSpUKEYRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpUKEYRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwPort{};
    DWORD m_dwBaudRate{};
    DWORD m_dwMaxUKeyCount{};
    DWORD m_dwNumOfConfUKey{};
    DWORD m_dwUKeyType{};
};
