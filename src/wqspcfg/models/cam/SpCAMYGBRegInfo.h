#pragma once

#include "wqspcfg/classes/CAMRegInfo.h"
#include "wqspcfg/parts/SignaturePad.h"

// A signature pad. The positions here are those of the tip text and hide the preview window's of the class base.
class WQSPCFG_API CSpCAMYGBRegInfo : public CCAMRegInfo, public wqspcfg::SignaturePad
{
  public:
    CSpCAMYGBRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpCAMYGBRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    // Of the tip text, not of the class's preview window.
    using SignaturePad::m_dwPosX;
    using SignaturePad::m_dwPosY;

    CString m_strPicturePath;
    bool m_bLoadOneMoreKey{};
    bool m_bCreatWinDisPlay{};
    DWORD m_dwDevType{};
    CString m_strBGTextData;
};
