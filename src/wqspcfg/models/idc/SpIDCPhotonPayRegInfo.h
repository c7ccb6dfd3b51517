#pragma once

#include "wqspcfg/classes/IDCRegInfo.h"

// The PhotonPay card reader, with the settings of every card reader and none of its own.
class WQSPCFG_API CSpIDCPhotonPayRegInfo : public CIDCRegInfo
{
  public:
    CSpIDCPhotonPayRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpIDCPhotonPayRegInfo() override;

    static const wqspcfg::Table& Settings() noexcept;
};
