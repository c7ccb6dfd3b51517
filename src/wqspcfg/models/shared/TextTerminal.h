#pragma once

#include "wqspcfg/classes/TTURegInfo.h"
#include "wqspcfg/platform/framework/FrameworkTypes.h"

#include <span>

namespace wqspcfg {

struct Setting;

// One size of the screen, in characters.
struct TextResolution
{
    WORD columns;
    WORD rows;
};

// Where a monitor's picture lies on the desktop, in pixels. Left and top are signed: a monitor may lie left of the
// first.
struct MonitorArea
{
    DWORD m_dwLeft;
    DWORD m_dwTop;
    DWORD m_dwWidth;
    DWORD m_dwHeight;
};

// A colour that an LED can show.
struct LedColour
{
    BYTE red;
    BYTE green;
    BYTE blue;
    DWORD xfsColour; // the XFS colour that it stands for, such as 256 for red
};

struct TerminalLed
{
    CString m_strColours;
    CArray<LedColour> colours; // m_strColours, read
    DWORD m_dwSlowFlash;       // flashes per minute
    DWORD m_dwMediumFlash;
    DWORD m_dwQuickFlash;
};

// What the text terminals that are windows on a monitor have in common. Load reads it after the class base's settings.
class WQSPCFG_API TextTerminal : public CTTURegInfo
{
  public:
    static constexpr unsigned kMonitors = 4;
    static constexpr unsigned kLeds = 8;

    TextTerminal(const CString& strName, bool bPhysicalName);
    bool Load(CLog* pLog) override;
    void Save() override;

    // The area of the monitor that m_dwMonitor names.
    const MonitorArea& Monitor() const noexcept { return m_arMonitor[m_dwMonitor - 1]; }

    DWORD m_dwMonitor; // 1 to kMonitors
    MonitorArea m_arMonitor[kMonitors];
    CString m_strResolutions;
    CArray<TextResolution> m_arResolution; // m_strResolutions, read; never empty after Load
    CString m_strFontName;
    DWORD m_dwFontHeight;
    bool m_bFontBold;
    DWORD m_dwBeepFrequency;
    DWORD m_dwBeepTime;
    CString m_strBeepFile;
    DWORD m_dwLedCount; // 0 to kLeds
    TerminalLed m_arLed[kLeds];
    CString m_strCaption;
    DWORD m_dwWindowStart;
    bool m_bTopMost;

  protected:
    static std::span<const Setting> Rows() noexcept;
};

} // namespace wqspcfg
