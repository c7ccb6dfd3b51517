#pragma once

#include "wqspcfg/classes/PTRRegInfo.h"
#include "wqspcfg/models/idc/SpFPCRegInfo.h"

// Fingerprint collectors of all makes, served as a printer: the settings of printers and of the collector, and its own.
class WQSPCFG_API CSpPTRPrdFPCNormalRegInfo : public CPTRRegInfo, public CSpFPCRegInfo
{
  public:
    CSpPTRPrdFPCNormalRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpPTRPrdFPCNormalRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    // Reads the rules by which the read-image command serves requests: every text value of the subkey ReadImageRule of
    // the device key, the rule's name and its text, into m_mapReadImageRule, each with a line in the log. Rules that
    // are not stored any more leave the map. False when there is no rule. Load does not read them, and Save leaves them
    // alone.
    bool LoadReadImageRuleCfg(CLog* pLog);

    static const wqspcfg::Table& Settings() noexcept;

    bool m_bDelDataAfterMatchFinger{};
    CMapStringToString m_mapReadImageRule;
};
