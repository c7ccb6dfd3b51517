#pragma once

#include "wqspcfg/classes/PTRRegInfo.h"

// The AH32 receipt printer.
class WQSPCFG_API CSpPTRAH32RegInfo : public CPTRRegInfo
{
  public:
    CSpPTRAH32RegInfo(const CString& strName, bool bPhysicalName);
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwPort;
    DWORD m_dwBaudRate;
    DWORD m_dwPaperWidth;
    DWORD m_dwPaperHeight;
    bool m_bOffsetValid;
    DWORD m_dwLineSpace;
    DWORD m_dwWordSpace;
    DWORD m_dwLeftSpace;
    bool m_bMustBeBold;
    bool m_bUseFixFontSize;
    DWORD m_dwFontSize;
    bool m_bUseCPI;
    bool m_bMustBeFontName;
    CString m_strFontName;
    bool m_bRawDataAsBmp;
    bool m_bRawDataWordWrap;
    DWORD m_dwRawDataFontSize;
    CString m_strRawDataFontName;
    bool m_bUseImageStretch;
    DWORD m_dwBlackColorRangeMax;
    DWORD m_dwFeedBeforePrint;
    DWORD m_dwFeedAfterPrint;
    bool m_bSendMediaTakenEvent;
    DWORD m_dwWaitMediaTakenTime;
    DWORD m_dwPrintIntervalTime;
    DWORD m_dwPolicyOfLineSpace;
    bool m_bUseOneFormPrintManyKindsReceipt;
    DWORD m_dwAdjustPosY;
    DWORD m_dwRawDataStyle;
    bool m_bIgnoreInvalidData;
};
