#pragma once

#include "wqspcfg/classes/PTRRegInfo.h"

// The SNBC C6500M cheque printer.
class WQSPCFG_API CSpPTRSNBCC6500MRegInfo : public CPTRRegInfo
{
  public:
    CSpPTRSNBCC6500MRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpPTRSNBCC6500MRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwPort{};
    DWORD m_dwCheckType{};
    bool m_bCheckOutBoxEmpty{};
    bool m_bUserOCRCheck{};
    DWORD m_dwCheckWidth{};
    DWORD m_dwCheckHeight{};
    DWORD m_dwTwoDimPicXPoxLeftOffset{};
    DWORD m_dwTwoDimPicXPoxRightOffset{};
    DWORD m_dwTwoDimPicYPoxUpOffset{};
    DWORD m_dwTwoDimPicYPoxDownOffset{};
    DWORD m_dwContentXPoxLeftOffset{};
    DWORD m_dwContentXPoxRightOffset{};
    DWORD m_dwContentYPoxUpOffset{};
    DWORD m_dwContentYPoxDownOffset{};
    bool m_bFirstGetCheckNoWhenPrintCheck{};
    bool m_bCompareCheckStartNo{};
    bool m_bPintTwoDimCodePic{};
};
