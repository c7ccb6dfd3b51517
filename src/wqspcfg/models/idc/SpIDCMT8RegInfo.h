#pragma once

#include "wqspcfg/models/shared/CardReaderParts.h"

// The MT8, a reader of CPU, chip, magnetic-stripe and identity cards in one device. Each kind of card may be served
// under a logical name of its own.
class WQSPCFG_API CSpIDCMT8RegInfo : public wqspcfg::CombinedReader<CIDCRegInfo>
{
  public:
    CSpIDCMT8RegInfo(const CString& strName, bool bPhysicalName);
    ~CSpIDCMT8RegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwBaudRate{};
    DWORD m_dwPort{};
    DWORD m_dwType{};
    DWORD m_dwTimeOutOfReadMagCard{}; // seconds
    CString m_strIDCardImagePath;
    CString m_strIDCardImageName;
    CString m_strIDCardImagePathBeCopyed;
    DWORD m_dwReadIDStandard{};
    bool m_bIsUnContactFailed{};
    bool m_bGetImageFrontAndBack{};
    CString m_strImageFrontPath;
    CString m_strImageBackPath;
    CString m_strImagePhotoPath;
    bool m_bSendSrveDevStChanges{};
    bool m_bSetMediaNotPresent{};
    bool m_bCheckCardInsertOfIdle{};
    bool m_bTranformIC2Hex{};
    bool m_bIDPhotoNamedById{};
    DWORD m_dwHandleRepeatCardPolicy{};
    bool m_bGetFingerData{};
    bool m_bGetForeignData{};
    bool m_bIsSaveNationCompleInfo{};
};
