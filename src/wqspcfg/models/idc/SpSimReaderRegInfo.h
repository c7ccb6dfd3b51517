#pragma once

#include "wqspcfg/classes/IDCRegInfo.h"

// A reader of SIM and CPU cards.
class WQSPCFG_API CSpSimReaderRegInfo : public CIDCRegInfo
{
  public:
    CSpSimReaderRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpSimReaderRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    CString m_strCardNameOfConn;
    bool m_bHandleRepeatCard{};
    bool m_bRtnInvalidMediaOfRepeatCard{};
    bool m_bSupportChipPower{};
    bool m_bCheckCardInsertOfIdle{};
    DWORD m_dwCardReaderType{};
};
