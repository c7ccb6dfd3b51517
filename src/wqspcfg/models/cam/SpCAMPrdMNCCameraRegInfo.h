#pragma once

#include "wqspcfg/classes/CAMRegInfo.h"

// The product-line monocular cameras, one for each camera position: ROOM, PERSON, EXITSLOT and EXTRA, in this order.
class WQSPCFG_API CSpCAMPrdMNCCameraRegInfo : public CCAMRegInfo
{
  public:
    CSpCAMPrdMNCCameraRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpCAMPrdMNCCameraRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    bool m_bTakePicWithDis{};
    DWORD m_dwTakePicDelayTime{};
    bool m_bUseAPResolution{};
    bool m_bDestroyWhenNoCreate{};
    bool m_bSetDisplayDlgTopMost{};
    bool m_bCamDataToPath{};
    bool m_bStartFaceDetect{};
    bool m_bStartPreviewText{};
    DWORD m_dwTakePictureGetFaceFeatureTimes{};
    bool m_bCreatVideoDlgInDisplay{};
    bool m_bStartVideobyOpen{};
    bool m_bIsStoreCurPicIndex{};
    bool m_bResizePicture{};
    DWORD m_dwResizeSrcX{};
    DWORD m_dwResizeSrcY{};
    DWORD m_dwPicTextXPos{};
    DWORD m_dwPicTextYPos{};
    DWORD m_dwPicTextFontSize{};
    CString m_strPicTextFontName;
    DWORD m_dwwiSO{};
    DWORD m_dwPicTextFontColor{};
    DWORD m_dwMaxDataLength{};
    DWORD m_dwDispResolutionWidth{};
    DWORD m_dwDispResolutionHeight{};
    DWORD m_dwDispWndX{};
    DWORD m_dwDispWndY{};
    DWORD m_dwDispWndWidth{};
    DWORD m_dwDispWndHeight{};
    DWORD m_dwVideoFrame{};
    DWORD m_dwPreTextXPos{};
    DWORD m_dwPreTextYPos{};
    DWORD m_dwPreTextFontSize{};
    DWORD m_dwPreTextFontColor{};
    CString m_strPreTextFontName;
    DWORD m_dwMaxPictures{};
    struct tagCameraPosition
    {
        bool bAvailable{};
        CString strDeviceName;
        CString strPicturePath;
        DWORD dwPictureNumber{};
    };
    tagCameraPosition m_arPosition[4];
};
