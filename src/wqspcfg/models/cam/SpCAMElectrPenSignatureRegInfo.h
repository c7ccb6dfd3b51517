#pragma once

#include "wqspcfg/classes/CAMRegInfo.h"
#include "wqspcfg/parts/SignaturePad.h"

// An electronic pen for signatures. The positions here are those of the tip text and hide the preview window's of the
// class base.
class WQSPCFG_API CSpCAMElectrPenSignatureRegInfo : public CCAMRegInfo, public wqspcfg::SignaturePad
{
  public:
    CSpCAMElectrPenSignatureRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpCAMElectrPenSignatureRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    // Of the tip text, not of the class's preview window.
    using SignaturePad::m_dwPosX;
    using SignaturePad::m_dwPosY;

    bool m_bCreatWinDisplay{};
};
