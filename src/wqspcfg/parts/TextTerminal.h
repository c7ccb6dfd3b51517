// What the text terminals that are windows on a monitor have in common.
#pragma once

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/platform/framework/FrameworkTypes.h"

#include <algorithm>

namespace wqspcfg {

// One size of the screen, in characters.
struct TextResolution
{
    WORD columns{};
    WORD rows{};
};

// Where a monitor's picture lies on the desktop, in pixels. Left and top are signed: a monitor may lie left of the
// first.
struct MonitorArea
{
    DWORD m_dwLeft{};
    DWORD m_dwTop{};
    DWORD m_dwWidth{};
    DWORD m_dwHeight{};
};

// A colour that an LED can show.
struct LedColour
{
    BYTE red{};
    BYTE green{};
    BYTE blue{};
    DWORD xfsColour{}; // the XFS colour that it stands for, such as 256 for red
};

struct TerminalLed
{
    CString m_strColours;
    CArray<LedColour> colours; // m_strColours, read
    DWORD m_dwSlowFlash{};     // flashes per minute
    DWORD m_dwMediumFlash{};
    DWORD m_dwQuickFlash{};
};

struct WQSPCFG_API TextTerminal
{
    static constexpr unsigned kMonitors = 4;
    static constexpr unsigned kLeds = 8;
    static constexpr wchar_t kDefaultResolution[] = L"32x16";

    // The area of the monitor that m_dwMonitor names; of the first for any other number.
    const MonitorArea& Monitor() const noexcept
    {
        return m_arMonitor[m_dwMonitor >= 1 && m_dwMonitor <= kMonitors ? m_dwMonitor - 1 : 0];
    }

    DWORD m_dwMonitor{}; // 1 to kMonitors
    MonitorArea m_arMonitor[kMonitors];
    CString m_strResolutions;
    CArray<TextResolution> m_arResolution; // m_strResolutions, read; never empty after Load
    CString m_strFontName;
    DWORD m_dwFontHeight{};
    bool m_bFontBold{};
    DWORD m_dwBeepFrequency{};
    DWORD m_dwBeepTime{};
    CString m_strBeepFile;
    DWORD m_dwLedCount{}; // 0 to kLeds
    TerminalLed m_arLed[kLeds];
    CString m_strCaption;
    DWORD m_dwWindowStart{};
    bool m_bTopMost{};

    // Reads m_strResolutions and the colours of the LEDs. Entries that cannot be read are left out and reported.
    void ParseLists(CLog* pLog);
};

namespace detail {

inline constexpr Key kScreen = key::Below(L"Screen");
inline constexpr Key kMonitor = key::Common(L"Monitors\\Monitor%d");
inline constexpr Key kFont = key::Below(L"Font");
inline constexpr Key kLeds = key::Below(L"LED");
inline constexpr Key kLed = key::Below(L"LED\\LED%d");
inline constexpr Key kWindow = key::Below(L"Window");

inline constexpr DWORD kMonitorLeft[TextTerminal::kMonitors] = {0, 1024, 2048, 3072};

template <class C>
inline constexpr auto kFirstUnlessThere = Normalize([](C&, DWORD value, bool) -> DWORD {
    return value >= 1 && value <= TextTerminal::kMonitors ? value : 1;
});
template <class C>
inline constexpr auto kAtMostAllLeds = Normalize([](C&, DWORD value, bool) -> DWORD {
    return std::min<DWORD>(value, TextTerminal::kLeds);
});

// clang-format off
template <class C>
inline constexpr Setting kMonitorRows[] = {
    {kMonitor, L"Left", ElementOf<C, &TextTerminal::m_arMonitor, &MonitorArea::m_dwLeft>, 0,
     L"left edge of the monitor on the desktop, in pixels (signed)",
     PerIteration(kMonitorLeft), Label(L"Monitor%d\\Left")},
    {kMonitor, L"Top", ElementOf<C, &TextTerminal::m_arMonitor, &MonitorArea::m_dwTop>, 0,
     L"top edge of the monitor on the desktop, in pixels (signed)", Label(L"Monitor%d\\Top")},
    {kMonitor, L"Width", ElementOf<C, &TextTerminal::m_arMonitor, &MonitorArea::m_dwWidth>, 1024,
     L"width of the monitor, in pixels", Label(L"Monitor%d\\Width")},
    {kMonitor, L"Height", ElementOf<C, &TextTerminal::m_arMonitor, &MonitorArea::m_dwHeight>, 768,
     L"height of the monitor, in pixels", Label(L"Monitor%d\\Height")},
};

template <class C>
inline constexpr Setting kLedRows[] = {
    {kLed, L"Colours", ElementOf<C, &TextTerminal::m_arLed, &TerminalLed::m_strColours>,
     L"RGB(255, 0, 0)-256;RGB(0, 255, 0)-512",
     L"the colours of the LED between semicolons, each as RGB(red, green, blue)-XFS colour", Saved,
     Label(L"LED%d\\Colours")},
    {kLed, L"SlowFlash", ElementOf<C, &TextTerminal::m_arLed, &TerminalLed::m_dwSlowFlash>, 30,
     L"slow flashing, in flashes per minute", Saved, Label(L"LED%d\\SlowFlash")},
    {kLed, L"MediumFlash", ElementOf<C, &TextTerminal::m_arLed, &TerminalLed::m_dwMediumFlash>, 60,
     L"medium flashing, in flashes per minute", Saved, Label(L"LED%d\\MediumFlash")},
    {kLed, L"QuickFlash", ElementOf<C, &TextTerminal::m_arLed, &TerminalLed::m_dwQuickFlash>, 120,
     L"quick flashing, in flashes per minute", Saved, Label(L"LED%d\\QuickFlash")},
};
// clang-format on

} // namespace detail

// clang-format off
template <class C>
inline constexpr Setting kTextTerminalRows[] = {
    {detail::kScreen, L"Monitor", Of<C, &TextTerminal::m_dwMonitor>, 1,
     L"number of the monitor that shows the terminal, 1 to 4; any other number means 1", Saved,
     Range(1, TextTerminal::kMonitors), detail::kFirstUnlessThere<C>},
    Repeat(1, TextTerminal::kMonitors, Rows<detail::kMonitorRows<C>>),
    {detail::kScreen, L"Resolutions", Of<C, &TextTerminal::m_strResolutions>, TextTerminal::kDefaultResolution,
     L"the sizes of the screen between semicolons, each as columns x rows in characters; the first is used "
     L"at the start", Saved},
    {detail::kFont, L"FontName", Of<C, &TextTerminal::m_strFontName>, L"Courier New",
     L"name of a font of fixed width", Saved},
    {detail::kFont, L"FontHeight", Of<C, &TextTerminal::m_dwFontHeight>, 24,
     L"height of a character, in pixels", Saved},
    {detail::kFont, L"FontBold", Of<C, &TextTerminal::m_bFontBold>,
     0, L"text is bold: 0 no; nonzero yes", Saved},
    {key::Beep, L"BeepFrequency", Of<C, &TextTerminal::m_dwBeepFrequency>,
     1000, L"pitch of the beep, in Hz", Saved},
    {key::Beep, L"BeepTime", Of<C, &TextTerminal::m_dwBeepTime>,
     200, L"length of a beep, in milliseconds", Saved},
    {key::Beep, L"BeepFile", Of<C, &TextTerminal::m_strBeepFile>, L"",
     L"sound file played in place of the beep; empty plays the beep", Saved, RefersTo(Reference::File)},
    {detail::kLeds, L"LedCount", Of<C, &TextTerminal::m_dwLedCount>, 0,
     L"number of LEDs, 0 to 8; a greater number means 8", Saved, Range(0, TextTerminal::kLeds),
     detail::kAtMostAllLeds<C>},
    Repeat(1, TextTerminal::kLeds, Rows<detail::kLedRows<C>>),
    {detail::kWindow, L"Caption", Of<C, &TextTerminal::m_strCaption>, L"Text terminal",
     L"caption of the window", Saved},
    {detail::kWindow, L"WindowStart", Of<C, &TextTerminal::m_dwWindowStart>, 0,
     L"the window at the start: 0 normal; 1 minimised; 2 full screen; 3 hidden until the first output", Saved, OneOf},
    {detail::kWindow, L"TopMost", Of<C, &TextTerminal::m_bTopMost>, 0,
     L"the window stays above all others: 0 no; nonzero yes", Saved},
    Step([](C& c, Loading& loading) { c.ParseLists(loading.Log()); }),
};
// clang-format on

} // namespace wqspcfg
