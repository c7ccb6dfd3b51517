#pragma once

#include "wqspcfg/models/shared/NoteRecycler.h"

// A note recycler with seven cassette slots, in the order A, B, C, D, E, F, R.
class WQSPCFG_API CSpC81DriverRegInfo : public wqspcfg::NoteRecycler
{
  public:
    CSpC81DriverRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpC81DriverRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    tagCassetteSlot m_arSlot[7]{};
    DWORD m_dwUseCassetteR{};
    DWORD m_dwUDCID{};
    DWORD m_dwODCID{};
    DWORD m_dwLEGCTime{};
    DWORD m_dwLEGCPol{};
    CString m_strDLIFilePath;
    CString m_strBeepFilePath;
    DWORD m_dwModelCloseBeepPolicy{};
    DWORD m_dw6060CASTypeRf6040w{};
    DWORD m_dwHandleRefuseReasonOfVerify{};
};
