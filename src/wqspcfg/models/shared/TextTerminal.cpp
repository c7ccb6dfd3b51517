#include "wqspcfg/models/shared/TextTerminal.h"

#include "wqspcfg/core/settings/Settings.h"
#include "wqspcfg/platform/utility/StringUtility.h"

#include <limits>

namespace wqspcfg {

namespace {

using C = TextTerminal;

constexpr wchar_t kDefaultResolution[] = L"32x16";

// Takes `literal` from the front of the text.
bool Take(std::wstring_view& text, std::wstring_view literal)
{
    if (!text.starts_with(literal)) {
        return false;
    }
    text.remove_prefix(literal.size());
    return true;
}

// Takes a number from `low` to `high` from the front of the text.
template <class T>
bool Take(std::wstring_view& text, T& value, DWORD low, DWORD high = std::numeric_limits<T>::max())
{
    std::uint64_t number = 0;
    std::size_t digits = 0;
    for (; digits < text.size() && digits < 10 && text[digits] >= L'0' && text[digits] <= L'9'; ++digits) {
        number = number * 10 + static_cast<std::uint64_t>(text[digits] - L'0');
    }
    if (digits == 0 || number < low || number > high) {
        return false;
    }
    text.remove_prefix(digits);
    value = static_cast<T>(number);
    return true;
}

bool Parse(std::wstring_view text, TextResolution& resolution)
{
    return Take(text, resolution.columns, 1) && Take(text, L"x") && Take(text, resolution.rows, 1) && text.empty();
}

bool Parse(std::wstring_view text, LedColour& colour)
{
    return Take(text, L"RGB(") && Take(text, colour.red, 0) && Take(text, L", ") && Take(text, colour.green, 0) &&
           Take(text, L", ") && Take(text, colour.blue, 0) && Take(text, L")-") && Take(text, colour.xfsColour, 0) &&
           text.empty();
}

// Reads a list of entries between semicolons. An entry that cannot be read is reported and left out.
template <class T>
void ParseList(CArray<T>& out, const CString& strText, LPCWSTR lpszName, CLog* pLog)
{
    out.RemoveAll();
    CStringArray arEntries;
    CStringUtility::SplitString(arEntries, strText, L';');
    for (const auto& strEntry : arEntries) {
        T item{};
        if (Parse(strEntry.View(), item)) {
            out.Add(item);
        } else if (pLog != nullptr) {
            pLog->Error(kLogCategory, L"<%s(%d) : %s> %s has an entry that cannot be read : \"%s\"",
                        L"classes/TextTerminal.cpp", __LINE__, L"wqspcfg::TextTerminal::Load", lpszName, strEntry);
        }
    }
}

void ParseLists(C& c, CLog* pLog)
{
    ParseList(c.m_arResolution, c.m_strResolutions, L"Screen\\Resolutions", pLog);
    if (c.m_arResolution.IsEmpty()) {
        ParseList(c.m_arResolution, kDefaultResolution, L"Screen\\Resolutions", nullptr);
    }
    unsigned number = 0;
    for (auto& led : c.m_arLed) {
        ParseList(led.colours, led.m_strColours, FormatString(L"LED\\LED%d\\Colours", ++number).c_str(), pLog);
    }
}

constexpr Key kScreen = key::Below(L"Screen");
constexpr Key kMonitor = key::Common(L"Monitors\\Monitor%d");
constexpr Key kFont = key::Below(L"Font");
constexpr Key kLeds = key::Below(L"LED");
constexpr Key kLed = key::Below(L"LED\\LED%d");
constexpr Key kWindow = key::Below(L"Window");

constexpr DWORD kMonitorLeft[C::kMonitors] = {0, 1024, 2048, 3072};

// clang-format off
constexpr Setting kMonitorRows[] = {
    {kMonitor, L"Left",   Element<&C::m_arMonitor, &MonitorArea::m_dwLeft>,   0, L"left edge of the monitor on the desktop, in pixels (signed)", PerIteration(kMonitorLeft), Label(L"Monitor%d\\Left")},
    {kMonitor, L"Top",    Element<&C::m_arMonitor, &MonitorArea::m_dwTop>,    0, L"top edge of the monitor on the desktop, in pixels (signed)", Label(L"Monitor%d\\Top")},
    {kMonitor, L"Width",  Element<&C::m_arMonitor, &MonitorArea::m_dwWidth>,  1024, L"width of the monitor, in pixels", Label(L"Monitor%d\\Width")},
    {kMonitor, L"Height", Element<&C::m_arMonitor, &MonitorArea::m_dwHeight>, 768, L"height of the monitor, in pixels", Label(L"Monitor%d\\Height")},
};

constexpr Setting kLedRows[] = {
    {kLed, L"Colours",     Element<&C::m_arLed, &TerminalLed::m_strColours>,    L"RGB(255, 0, 0)-256;RGB(0, 255, 0)-512", L"the colours of the LED between semicolons, each as RGB(red, green, blue)-XFS colour", Saved, Label(L"LED%d\\Colours")},
    {kLed, L"SlowFlash",   Element<&C::m_arLed, &TerminalLed::m_dwSlowFlash>,   30, L"slow flashing, in flashes per minute", Saved, Label(L"LED%d\\SlowFlash")},
    {kLed, L"MediumFlash", Element<&C::m_arLed, &TerminalLed::m_dwMediumFlash>, 60, L"medium flashing, in flashes per minute", Saved, Label(L"LED%d\\MediumFlash")},
    {kLed, L"QuickFlash",  Element<&C::m_arLed, &TerminalLed::m_dwQuickFlash>,  120, L"quick flashing, in flashes per minute", Saved, Label(L"LED%d\\QuickFlash")},
};

constexpr Setting kSettings[] = {
    {kScreen, L"Monitor", &C::m_dwMonitor, 1, L"number of the monitor that shows the terminal, 1 to 4; any other number means 1", Saved, Range(1, C::kMonitors), Normalize([](C&, DWORD value, bool) -> DWORD { return value >= 1 && value <= C::kMonitors ? value : 1; })},
    Repeat(1, C::kMonitors, kMonitorRows),
    {kScreen,   L"Resolutions",   &C::m_strResolutions,  kDefaultResolution, L"the sizes of the screen between semicolons, each as columns x rows in characters; the first is used at the start", Saved},
    {kFont,     L"FontName",      &C::m_strFontName,     L"Courier New",     L"name of a font of fixed width", Saved},
    {kFont,     L"FontHeight",    &C::m_dwFontHeight,    24,                 L"height of a character, in pixels", Saved},
    {kFont,     L"FontBold",      &C::m_bFontBold,       0,                  L"text is bold: 0 no; nonzero yes", Saved},
    {key::Beep, L"BeepFrequency", &C::m_dwBeepFrequency, 1000,               L"pitch of the beep, in Hz", Saved},
    {key::Beep, L"BeepTime",      &C::m_dwBeepTime,      200,                L"length of a beep, in milliseconds", Saved},
    {key::Beep, L"BeepFile",      &C::m_strBeepFile,     L"",                L"sound file played in place of the beep; empty plays the beep", Saved},
    {kLeds,     L"LedCount",      &C::m_dwLedCount,      0,                  L"number of LEDs, 0 to 8; a greater number means 8", Saved, Range(0, C::kLeds), Normalize([](C&, DWORD value, bool) -> DWORD { return value <= C::kLeds ? value : C::kLeds; })},
    Repeat(1, C::kLeds, kLedRows),
    {kWindow, L"Caption",     &C::m_strCaption,    L"Text terminal", L"caption of the window", Saved},
    {kWindow, L"WindowStart", &C::m_dwWindowStart, 0,                L"the window at the start: 0 normal; 1 minimised; 2 full screen; 3 hidden until the first output", Saved, OneOf},
    {kWindow, L"TopMost",     &C::m_bTopMost,      0,                L"the window stays above all others: 0 no; nonzero yes", Saved},
    Step([](C& c, Loading& loading) { ParseLists(c, loading.Log()); }),
};
// clang-format on

} // namespace

std::span<const Setting> TextTerminal::Rows() noexcept
{
    return kSettings;
}

TextTerminal::TextTerminal(const CString& strName, bool bPhysicalName) : CTTURegInfo(strName, bPhysicalName)
{
    Construct(*this, kSettings);
}

bool TextTerminal::Load(CLog* pLog)
{
    Loading loading(*this, pLog);
    const bool bResult = CTTURegInfo::Load(pLog);
    return loading.Read(Settings(), kSettings) && bResult;
}

void TextTerminal::Save()
{
    Saving saving(*this);
    CTTURegInfo::Save();
    saving.Write(kSettings);
}

} // namespace wqspcfg
