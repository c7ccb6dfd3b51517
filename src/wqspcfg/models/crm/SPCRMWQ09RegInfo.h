#pragma once

#include "wqspcfg/models/shared/NoteRecycler.h"

// A note recycler with twelve cassette slots, in the order A, A2, B, B2, C, C2, D, D2, E, E2, F, R.
class WQSPCFG_API CSPCRMWQ09RegInfo : public wqspcfg::WQNoteRecycler
{
  public:
    CSPCRMWQ09RegInfo(const CString& strName, bool bPhysicalName);
    ~CSPCRMWQ09RegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    tagCassetteSlot m_arSlot[12]{};
};
