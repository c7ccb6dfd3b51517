#pragma once

#include "wqspcfg/classes/PTRRegInfo.h"

// The Aratek CID4000 fingerprint and identity-card device, served as a printer.
class WQSPCFG_API CSpPTRAratekCID4000RegInfo : public CPTRRegInfo
{
  public:
    CSpPTRAratekCID4000RegInfo(const CString& strName, bool bPhysicalName);
    ~CSpPTRAratekCID4000RegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;
};
