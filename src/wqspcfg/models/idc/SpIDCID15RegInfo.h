#pragma once

#include "wqspcfg/models/shared/CardReaderParts.h"

// The ID15 identity card reader and scanner.
class WQSPCFG_API CSpIDCID15RegInfo : public wqspcfg::IdentityCardScanner
{
  public:
    CSpIDCID15RegInfo(const CString& strName, bool bPhysicalName);
    ~CSpIDCID15RegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    CString m_strCardImagePath;
    CString m_strFrontScanImagePath;
    CString m_strBackScanImagePath;
    CString m_strImageSavePath;
    DWORD m_dwScanFormat{};
    DWORD m_dwScanColor{};
    bool m_bIsReadIDCardInfo{};
    bool m_bIsScan{};
    bool m_bIsHoldCardAfterEject{};
    bool m_bIDMustEjectCardAfterScan{};
    bool m_bChangeBySPDB{};
    DWORD m_dwSavingGetImagePathTime{}; // seconds
    DWORD m_dwMachineType{};
    bool m_bPowerOffRecover{};
    bool m_bIsChangeNoToNO{};
    DWORD m_dwWidthOfFrontBack{};
    DWORD m_dwHightOfFrontBack{};
    bool m_bIsSaveNationCompleInfo{};
};
