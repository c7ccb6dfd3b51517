#pragma once

#include "wqspcfg/models/shared/CardReaderParts.h"

// The new BS ID81 identity card reader and scanner.
class WQSPCFG_API CSpIDCNewBSID81RegInfo : public wqspcfg::IdentityCardScanner
{
  public:
    CSpIDCNewBSID81RegInfo(const CString& strName, bool bPhysicalName);
    ~CSpIDCNewBSID81RegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    bool m_bIDMustEjectCardAfterScan{};
    CString m_strIDCardImagePath;
    CString m_strIDFrontScanImagePath;
    CString m_strIDBackScanImagePath;
    DWORD m_dwInforReturnFormat{};
    CString m_strImageSavePath;
    DWORD m_dwSavingGetImagePathTime{}; // seconds
    bool m_bChangeBySPDB{};
    DWORD m_dwSetDPIMode{};
    DWORD m_dwWidthOfFrontBack{};
    DWORD m_dwHightOfFrontBack{};
    DWORD m_dwScanFormat{};
    bool m_bReadIdCardInfo{};
    DWORD m_dwInforReturnFormatForWQ{};
    bool m_bIsScanAfterReadFail{};
    bool m_bIsAppendFingerData{};
    bool m_bIsChangeNoToNO{};
    bool m_bIsSaveNationCompleInfo{};
};
