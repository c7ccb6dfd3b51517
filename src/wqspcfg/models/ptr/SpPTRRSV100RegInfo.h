#pragma once

#include "wqspcfg/classes/PTRRegInfo.h"

// The RSV100 ticket printer with retain bins and RFID reader.
class WQSPCFG_API CSpPTRRSV100RegInfo : public CPTRRegInfo
{
  public:
    static constexpr unsigned kRetainBins = 4;

    CSpPTRRSV100RegInfo(const CString& strName, bool bPhysicalName);
    bool Load(CLog* pLog) override;
    void Save() override;

    // Writes the number of items in every retain bin (m_dwRetainBinCount) at once.
    void SaveRetainBinCount();

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwMaxRetainCount;
    DWORD m_dwHighRetainCount;
    DWORD m_dwRetainBinCount[kRetainBins]; // of bin 0 to 3, each in a key of its own
    DWORD m_dwPortOfRFID;
    DWORD m_dwLeftAdjustSpace;
    DWORD m_dwResetCount;
    DWORD m_dwOpenActionType;
    DWORD m_dwCloseActionType;
    DWORD m_dwResetActionType;
    DWORD m_dwBankType;
};
