#pragma once

#include "wqspcfg/models/shared/RID100Printer.h"

// The RID100 ticket printer with retain bin, supply bins and RFID reader.
class WQSPCFG_API CSpPTRRID100RegInfo : public wqspcfg::RID100Printer
{
  public:
    CSpPTRRID100RegInfo(const CString& strName, bool bPhysicalName);
    ~CSpPTRRID100RegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    // Whether the field is printed as text: exactly one of the names of m_strFieldsPrintAsText.
    bool IsPrintAsTextField(const CString& strField) const;
    // Read and write the number of tickets in the retain bin (m_dwRetainBinCount), which has a key of its own and is no
    // part of Load and Save. Missing, it is 0.
    void LoadRetainBinCount();
    void SaveRetainBinCount();
    // Writes the tickets left in the supply bin in use (m_dwPaperCount) to the subkey PaperCounts, at once. Load reads
    // the count from the device key, where only Save writes it: call Save too, or the next start finds the old count.
    void SaveSetPaperCount();

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwBankType{};
    DWORD m_dwRetainBinCount{};
};
