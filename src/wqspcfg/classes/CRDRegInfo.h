// Settings of card dispensers (XFS class CRD) and their card units.
#pragma once

#include "wqspcfg/classes/CardUnitEx.h"
#include "wqspcfg/core/RegInfo.h"
#include "wqspcfg/parts/SyncDecorator.h"
#include "wqspcfg/platform/framework/FrameworkTypes.h"

// The provider changes the card units while it runs, under their lock, and persists them with Save or FlushCardUnit.
// Load takes the lock while it rebuilds the units and LogCardUnitInfo while it reads them; Save and FlushCardUnit take
// none: the caller excludes changes.
class WQSPCFG_API CCRDRegInfo : public CRegInfo
{
  public:
    using CardUnits = CSyncDecorator<CArray<tagCardUnitEx, const tagCardUnitEx&>, CMutex>;

    CCRDRegInfo(const CString& strName, bool bPhysicalName);
    ~CCRDRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    // Writes the current number and every card unit, under the unit's own number. Units that the registry holds beside
    // them stay.
    void FlushCardUnit();
    // Writes the table of card units to the log.
    void LogCardUnitInfo(CLog* pLog, const CString& strTitle, bool bFatal);

    static const wqspcfg::Table& Settings() noexcept;

    DWORD m_dwCurNumber{};
    CardUnits m_arCardUnit;
    bool m_bUseLogicCountOfSupplyBinStatus{};
    bool m_bUseLogicCountOfRetainBinStatus{};
    bool m_bDispenseErrorRetain{};
    bool m_bWaitCardReMoveBeforeComplete{};
    DWORD m_dwDispenseAfterRetainBinFull{};
    CString m_strSendCardUnitEvntAfterExeComplete;
    DWORD m_dwTemporaryRetainBin{};

  private:
    // False when the units cannot be listed.
    bool LoadCardUnits(wqspcfg::Loading& loading);
};
