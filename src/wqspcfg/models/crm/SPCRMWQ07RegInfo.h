#pragma once

#include "wqspcfg/models/shared/NoteRecycler.h"

// A note recycler with seven cassette slots, in the order A, B, C, D, E, F, R.
class WQSPCFG_API CSPCRMWQ07RegInfo : public wqspcfg::WQNoteRecycler
{
  public:
    CSPCRMWQ07RegInfo(const CString& strName, bool bPhysicalName);
    ~CSPCRMWQ07RegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    tagCassetteSlot m_arSlot[7]{};
};
