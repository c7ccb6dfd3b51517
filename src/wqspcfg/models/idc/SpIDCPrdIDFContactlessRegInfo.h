#pragma once

#include "wqspcfg/classes/IDCRegInfo.h"

// A contactless identity card reader behind a device driver module.
class WQSPCFG_API CSpIDCPrdIDFContactlessRegInfo : public CIDCRegInfo
{
  public:
    CSpIDCPrdIDFContactlessRegInfo(const CString& strName, bool bPhysicalName);
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    CString m_strDN_IDF_CONTACTLESS;
    CString m_strTrack1Format;
    CString m_strTrack2Format;
    CString m_strTrack3Format;
    CString m_strChipFormat;
    CString m_strFrontImageFormat;
    CString m_strBackImageFormat;
    CString m_strTrackWMFormat;
    CString m_strHeadPicPath;
    CString m_strFrontPicPath;
    CString m_strBackPicPath;
    DWORD m_dwReadTracks;
    DWORD m_dwWidthOfFrontBack;
    DWORD m_dwHeightOfFrontBack;
    bool m_bIsExeComReturnFailofContactless;
    bool m_bIsUpdateMediaInOnIdle;
};
