#pragma once

#include "wqspcfg/classes/TTURegInfo.h"
#include "wqspcfg/parts/TextTerminal.h"

namespace wqspcfg {

// A function-key button beside the screen of the virtual terminal.
struct FdkButton
{
    bool m_bEnabled{};
    CString m_strText; // empty: the button shows its number
};

} // namespace wqspcfg

// The virtual text terminal: a window with a screen, LEDs and function-key buttons, for a terminal without the device.
class WQSPCFG_API CSpTTUVirtualRegInfo : public CTTURegInfo, public wqspcfg::TextTerminal
{
  public:
    // The function keys FDK01 to FDK08: four on the left of the screen, then four on its right.
    static constexpr unsigned kFdkButtons = 8;

    CSpTTUVirtualRegInfo(const CString& strName, bool bPhysicalName);
    ~CSpTTUVirtualRegInfo() override;
    bool Load(CLog* pLog) override;
    void Save() override;

    static const wqspcfg::Table& Settings() noexcept;

    wqspcfg::FdkButton m_arFdkButton[kFdkButtons];
};
