#pragma once

#include "wqspcfg/models/shared/CardReaderParts.h"

// The identity card reader of the DC T10N.
class WQSPCFG_API CSpIDCDCT10NIDFRegInfo : public wqspcfg::DcReader
{
  public:
    CSpIDCDCT10NIDFRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpIDCDCT10NIDFRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    CString m_strIDCardImagePath;
    CString m_strIDCardImagePathBeCopyed;
    bool m_bIsUnContactFailed{};
    bool m_bGetImageFrontAndBack{};
    CString m_strImageFrontPath;
    CString m_strImageBackPath;
    bool m_bCheckCardInsertOfIdle{};
};
