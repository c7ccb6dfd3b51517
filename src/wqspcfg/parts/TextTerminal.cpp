#include "wqspcfg/parts/TextTerminal.h"

#include "wqspcfg/platform/utility/StringUtility.h"

#include <limits>

namespace wqspcfg {

namespace {

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
                        L"parts/TextTerminal.cpp", __LINE__, L"wqspcfg::TextTerminal::Load", lpszName, strEntry);
        }
    }
}

} // namespace

void TextTerminal::ParseLists(CLog* pLog)
{
    ParseList(m_arResolution, m_strResolutions, L"Screen\\Resolutions", pLog);
    if (m_arResolution.IsEmpty()) {
        ParseList(m_arResolution, kDefaultResolution, L"Screen\\Resolutions", nullptr);
    }
    unsigned number = 0;
    for (auto& led : m_arLed) {
        ParseList(led.colours, led.m_strColours, FormatString(L"LED\\LED%d\\Colours", ++number).c_str(), pLog);
    }
}

} // namespace wqspcfg
