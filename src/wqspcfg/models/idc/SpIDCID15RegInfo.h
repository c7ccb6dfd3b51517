#pragma once

#include "wqspcfg/classes/IDCRegInfo.h"

// The ID15 identity card reader and scanner.
class WQSPCFG_API CSpIDCID15RegInfo : public CIDCRegInfo
{
  public:
    CSpIDCID15RegInfo(const CString& strName, bool bPhysicalName);
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    CString m_strCardImagePath;
    CString m_strFrontScanImagePath;
    CString m_strBackScanImagePath;
    CString m_strImageSavePath;
    DWORD m_dwScanFormat;
    DWORD m_dwScanColor;
    bool m_bIsReadIDCardInfo;
    bool m_bIsScan;
    bool m_bIsHoldCardAfterEject;
    bool m_bIDMustEjectCardAfterScan;
    bool m_bChangeBySPDB;
    DWORD m_dwSavingGetImagePathTime; // seconds
    DWORD m_dwMachineType;
    bool m_bPowerOffRecover;
    bool m_bIsChangeNoToNO;
    bool m_bUseNewFormatCfg;
    CString m_strPadCharHex;
    CString m_strTrack1Format;
    CString m_strTrack2Format;
    CString m_strTrack3Format;
    CString m_strChipFormat;
    CString m_strFrontImageFormat;
    CString m_strBackImageFormat;
    CString m_strTrackWMFormat;
    CString m_strIDTypeDesc;
    CString m_strFIDTypeDesc;
    DWORD m_dwReadTracks;
    bool m_bTracks2Unicode;
    bool m_bIsSupRetain;
    DWORD m_dwSexFormat;
    DWORD m_dwMustEjectAfterScanTime; // seconds
    DWORD m_dwWidthOfFrontBack;
    DWORD m_dwHightOfFrontBack;
    bool m_bIsSaveNationCompleInfo;
};
