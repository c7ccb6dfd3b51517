#pragma once

#include "wqspcfg/classes/IDCRegInfo.h"

// The TYRM8 reader of PSAM cards.
class WQSPCFG_API CSpIDCTYRM8PSAMRegInfo : public CIDCRegInfo
{
  public:
    CSpIDCTYRM8PSAMRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpIDCTYRM8PSAMRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwPort{};
    DWORD m_dwBaudRate{};
    bool m_bReturnSuccessWhenDeActiveNoMedia{};
};
