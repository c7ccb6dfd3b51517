#pragma once

#include "wqspcfg/classes/PTRRegInfo.h"

// Face capture with a camera, served as a printer.
class WQSPCFG_API CSpPTRTFaceColDetectRegInfo : public CPTRRegInfo
{
  public:
    CSpPTRTFaceColDetectRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpPTRTFaceColDetectRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    CString m_strCamName;
    CString m_strPicFile;
    CString m_strCamPIDVID;
    DWORD m_dwWidth{};
    DWORD m_dwHeight{};
};
