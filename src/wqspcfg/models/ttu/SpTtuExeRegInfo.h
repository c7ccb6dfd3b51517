#pragma once

#include "wqspcfg/models/shared/TextTerminal.h"

// The text terminal that a program of its own shows in a window.
class WQSPCFG_API CSpTtuExeRegInfo : public wqspcfg::TextTerminal
{
  public:
    CSpTtuExeRegInfo(const CString& strName, bool bPhysicalName);

    static const wqspcfg::Table& Settings() noexcept;
};
