#pragma once

#include "wqspcfg/classes/TTURegInfo.h"
#include "wqspcfg/parts/TextTerminal.h"

// The text terminal that a program of its own shows in a window.
class WQSPCFG_API CSpTtuExeRegInfo : public CTTURegInfo, public wqspcfg::TextTerminal
{
  public:
    CSpTtuExeRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpTtuExeRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;
};
