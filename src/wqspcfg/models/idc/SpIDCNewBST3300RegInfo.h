#pragma once

#include "wqspcfg/classes/IDCRegInfo.h"

// The new BS T3300 identity card scanner.
class WQSPCFG_API CSpIDCNewBST3300RegInfo : public CIDCRegInfo
{
  public:
    CSpIDCNewBST3300RegInfo(const CString& strName, bool bPhysicalName);
    ~CSpIDCNewBST3300RegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    CString m_strIDCardImagePath;
    CString m_strIDScanImagePath;
    DWORD m_dwIDSaveScanImageForm{};
    bool m_bIsSavePictureGroup{};
    bool m_bIsSavePictureOrig{};
    bool m_bIsSavePictureDirection{};
};
