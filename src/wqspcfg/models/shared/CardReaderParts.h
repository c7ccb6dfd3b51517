#pragma once

#include "wqspcfg/classes/IDCRegInfo.h"

namespace wqspcfg {

// Contactless readers of the DC family.
class WQSPCFG_API DcReader : public CIDCRegInfo
{
  public:
    using CIDCRegInfo::CIDCRegInfo;

    DWORD m_dwBaudRate{};
    DWORD m_dwPort{};
    DWORD m_dwCpuCardType{};
    DWORD m_dwTimesOfGetStIfSwitchLed{};
};

// A reader that serves cards of several kinds, each as a logical service of its own.
template <class Base>
class CombinedReader : public Base
{
  public:
    using Base::Base;

    CString m_strCPUCardLogicName;
    CString m_strSimReader;
    CString m_strIDCardLogicName;
    CString m_strCertRead;
    CString m_strMagCardLogicName;
    CString m_strCardReader;
    CString m_strICCardLogicName;
    CString m_strICCardReader;
};

// A reader whose data's formats are configured.
class WQSPCFG_API FormattingReader : public CIDCRegInfo
{
  public:
    using CIDCRegInfo::CIDCRegInfo;

    CString m_strTrack1Format;
    CString m_strTrack2Format;
    CString m_strTrack3Format;
    CString m_strChipFormat;
    CString m_strFrontImageFormat;
    CString m_strBackImageFormat;
    CString m_strTrackWMFormat;
};

// An identity card reader behind a device driver module.
class WQSPCFG_API IdentityCardReader : public FormattingReader
{
  public:
    using FormattingReader::FormattingReader;

    CString m_strHeadPicPath;
    CString m_strFrontPicPath;
    CString m_strBackPicPath;
};

// An identity card reader and scanner.
class WQSPCFG_API IdentityCardScanner : public FormattingReader
{
  public:
    using FormattingReader::FormattingReader;

    bool m_bUseNewFormatCfg{};
    CString m_strPadCharHex;
    CString m_strIDTypeDesc;
    CString m_strFIDTypeDesc;
    DWORD m_dwReadTracks{};
    bool m_bTracks2Unicode{};
    bool m_bIsSupRetain{};
    DWORD m_dwSexFormat{};
    DWORD m_dwMustEjectAfterScanTime{}; // seconds
};

} // namespace wqspcfg
