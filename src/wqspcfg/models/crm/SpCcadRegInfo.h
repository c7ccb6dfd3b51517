#pragma once

#include "wqspcfg/classes/CRMRegInfo.h"
#include "wqspcfg/parts/CassetteSlot.h"

// A note recycler with the cassette slots A, B, C, D, E, RJ, in that order. The physical types of the cassettes A to D
// come from the common key of the cash dispenser, which is never written.
class WQSPCFG_API CSpCcadRegInfo : public CCRMRegInfo
{
  public:
    CSpCcadRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpCcadRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwActionOfInnerShutterCantCloseInCIM{};
    DWORD m_dwRJBillMustStack{};
    DWORD m_dwHwInitCount{};
    DWORD m_dwCasTypeFollowSlot{};
    DWORD m_dwUseCassetteRJ{};
    DWORD m_dwUseCassetteEAsRJCAS{};
    tagCassetteSlot m_arSlot[6]{};
    DWORD m_dwUseBarcodeAsTrackData{};
    DWORD m_dwAType{};
    DWORD m_dwBType{};
    DWORD m_dwCType{};
    DWORD m_dwDType{};
};
