#pragma once

#include "wqspcfg/classes/PTRRegInfo.h"

namespace wqspcfg {

// The RID100 ticket printer with retain bin, supply bins and RFID reader, whatever name it goes by.
class WQSPCFG_API RID100Printer : public CPTRRegInfo
{
  public:
    using CPTRRegInfo::CPTRRegInfo;

    // Reads what simulation is to feed in, m_strSimCheckNo and m_strSimRFIDData, from the subkey Sim, each with a line
    // in the log. Load does not.
    void LoadSimData(CLog* pLog);

    DWORD m_dwMaxRetainCount{};
    DWORD m_dwHighRetainCount{};
    DWORD m_dwThickness{};
    DWORD m_dwAllOffsetX{};
    DWORD m_dwAllOffsetY{};
    DWORD m_dwLineSpace{};
    CString m_strFieldsPrintAsText;
    DWORD m_dwRFIDPort{};
    DWORD m_dwPowerOnOption{};
    DWORD m_dwPowerOffOption{};
    DWORD m_dwWaitEnteringAfterEject{};
    DWORD m_dwWaitMNPAfterRetract{};
    DWORD m_dwWaitMPAfterDispense{};
    DWORD m_dwResetMode{};
    DWORD m_dwWaitMediaTakenTime{};
    DWORD m_dwTextRotate{};
    DWORD m_dwPicRotate{};
    DWORD m_dwBlackColorRangeMax{};
    bool m_bMustBeBoldWhenDoubleHigh{};
    DWORD m_dwTryScanCount{};
    DWORD m_dwMaxPaperCount{};
    DWORD m_dwHighPaperCount{};
    bool m_bCompareCheckStartNo{};
    bool m_bPrintTwoDimCodePic{};
    DWORD m_dwSizeofQRCode{};
    DWORD m_dwPrintMagCode{};
    DWORD m_dwWhichBoxActive{};
    DWORD m_dwSaveImageTime{};
    DWORD m_dwSupplyBinCount{};
    DWORD m_dwPaperCount{};
    CString m_strPhotoPath;
    bool m_bRawDataPrintTextAsBmp{};
    // What LoadSimData reads.
    CString m_strSimCheckNo;
    CString m_strSimRFIDData;
};

} // namespace wqspcfg
