#pragma once

#include "wqspcfg/models/shared/CardReaderParts.h"

// The DC T10N, a reader of CPU, chip, magnetic-stripe and identity cards in one device. Each kind of card may be served
// under a logical name of its own.
class WQSPCFG_API CSpIDCDCT10NRegInfo : public wqspcfg::CombinedReader<wqspcfg::DcReader>
{
  public:
    CSpIDCDCT10NRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpIDCDCT10NRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwICBaudRate{};
    DWORD m_dwICVolt{};
    DWORD m_dwTimeOutOfReadMagCard{}; // seconds
    DWORD m_dwPcdRate{};
    CString m_strIDCardImagePath;
    CString m_strIDCardImagePathBeCopyed;
    bool m_bIsUnContactFailed{};
    DWORD m_dwCardReaderType{};
    CString m_strCardNameOfConn;
    bool m_bGetImageFrontAndBack{};
    CString m_strImageFrontPath;
    CString m_strImageBackPath;
    DWORD m_dwReadIDCardPattern{};
    DWORD m_dwHandleRepeatCardPolicy{};
    DWORD m_dwFindCardPolicy{};
    bool m_bSupportChipPower{};
    bool m_bCheckCardInsertOfIdle{};
    bool m_bIsSaveIDCardPhoto{};
    bool m_bTranformIC2Hex{};
    bool m_bSendSrveDevStChanges{};
    bool m_bIsUseRemoteTransFile{};
    DWORD m_dwFileHostPort{};
    CString m_strFileHostIP;
    bool m_bIsSaveNationCompleInfo{};
    bool m_bSetPcdRate{};
    DWORD m_dwInforReturnFormat{};
};
