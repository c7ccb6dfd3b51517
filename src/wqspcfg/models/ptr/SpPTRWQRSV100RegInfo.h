#pragma once

#include "wqspcfg/classes/PTRRegInfo.h"

// The RSV100 ticket printer with retain bins and RFID reader, under the maker's own name.
class WQSPCFG_API CSpPTRWQRSV100RegInfo : public CPTRRegInfo
{
  public:
    static constexpr unsigned kRetainBins = 4;

    CSpPTRWQRSV100RegInfo(const CString& strName, bool bPhysicalName);
    bool Load(CLog* pLog) override;
    void Save() override;

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
    DWORD m_dwFrimBankType;
    DWORD m_dwSaveImageTime;
};
