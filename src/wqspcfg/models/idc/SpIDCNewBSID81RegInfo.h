#pragma once

#include "wqspcfg/classes/IDCRegInfo.h"

// The new BS ID81 identity card reader and scanner.
class WQSPCFG_API CSpIDCNewBSID81RegInfo : public CIDCRegInfo
{
  public:
    CSpIDCNewBSID81RegInfo(const CString& strName, bool bPhysicalName);
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    bool m_bIDMustEjectCardAfterScan;
    CString m_strIDCardImagePath;
    CString m_strIDFrontScanImagePath;
    CString m_strIDBackScanImagePath;
    DWORD m_dwInforReturnFormat;
    CString m_strImageSavePath;
    DWORD m_dwSavingGetImagePathTime; // seconds
    bool m_bChangeBySPDB;
    DWORD m_dwSetDPIMode;
    DWORD m_dwWidthOfFrontBack;
    DWORD m_dwHightOfFrontBack;
    DWORD m_dwScanFormat;
    bool m_bReadIdCardInfo;
    DWORD m_dwInforReturnFormatForWQ;
    bool m_bIsScanAfterReadFail;
    bool m_bIsAppendFingerData;
    bool m_bIsChangeNoToNO;
    bool m_bIsSaveNationCompleInfo;
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
};
