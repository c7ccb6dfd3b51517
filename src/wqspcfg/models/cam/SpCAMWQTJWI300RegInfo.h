#pragma once

#include "wqspcfg/classes/CAMRegInfo.h"

// A document camera with a tray and a retract module.
class WQSPCFG_API CSpCAMWQTJWI300RegInfo : public CCAMRegInfo
{
  public:
    CSpCAMWQTJWI300RegInfo(const CString& strName, bool bPhysicalName);
    ~CSpCAMWQTJWI300RegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwPort{};
    DWORD m_dwBaudRate{};
    DWORD m_dwDevType{};
    DWORD m_dwMaxPictures{};
    DWORD m_dwControlTrayOnlyInTakePicture{};
    DWORD m_dwRetractCount{};
    DWORD m_dwMaxRetract{};
    DWORD m_dwAutoCloseTray{};
    CString m_strTakePictureDir;
    DWORD m_dwPictureRotate{};
    DWORD m_dwDPI{};
    DWORD m_dwBrightness{};
    DWORD m_dwContrast{};
    DWORD m_dwSaturation{};
    DWORD m_dwHUE{};
    DWORD m_dwSharpness{};
    DWORD m_dwGamma{};
    DWORD m_dwWhiteBalance{};
    DWORD m_dwBackLightCompensation{};
    DWORD m_dwExposure{};
    DWORD m_dwAtivePropertyParam{};
    DWORD m_dwFontSize{};
    DWORD m_dwXPos{};
    DWORD m_dwYPos{};
};
