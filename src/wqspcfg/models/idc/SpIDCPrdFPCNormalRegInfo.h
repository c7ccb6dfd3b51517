#pragma once

#include "wqspcfg/classes/IDCRegInfo.h"
#include "wqspcfg/models/idc/SpFPCRegInfo.h"

// A fingerprint collector behind a device driver module, served as a card reader. Its m_dwProtocolType (0: ReadRawData,
// other: chip I/O) is the collector's member. Its Save writes the path of the fingerprint images and nothing else,
// neither the card reader's settings nor the collector's.
class WQSPCFG_API CSpIDCPrdFPCNormalRegInfo : public CIDCRegInfo, public CSpFPCRegInfo
{
  public:
    CSpIDCPrdFPCNormalRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpIDCPrdFPCNormalRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    CString m_strFingerPicPath;
};
