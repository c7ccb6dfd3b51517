#include "wqspcfg/platform/framework/String.h"

#include "wqspcfg/platform/text/CaseFold.h"

#include <algorithm>
#include <cwctype>

namespace {

constexpr std::wstring_view kBlanks = L" \t\n\v\f\r";

wchar_t Lower(wchar_t ch)
{
    return static_cast<wchar_t>(std::towlower(static_cast<std::wint_t>(ch)));
}

std::wstring_view ViewOf(LPCWSTR text) noexcept
{
    return text != nullptr ? std::wstring_view(text) : std::wstring_view();
}

int Position(std::size_t found) noexcept
{
    return found == std::wstring::npos ? -1 : static_cast<int>(found);
}

std::size_t Clamped(int count, std::size_t size) noexcept
{
    return count <= 0 ? 0 : std::min(static_cast<std::size_t>(count), size);
}

} // namespace

// Out of line: inlined, GCC for Windows reports a copy beyond the end of an empty literal that never happens.
CString::CString(LPCWSTR text) : m_text(View(text)) {}

void CString::SetAt(int index, wchar_t ch)
{
    if (index < 0 || index >= GetLength()) {
        throw CInvalidArgException();
    }
    m_text[static_cast<std::size_t>(index)] = ch;
}

CString CString::Left(int count) const
{
    return View().substr(0, Clamped(count, m_text.size()));
}

CString CString::Mid(int first) const
{
    return View().substr(Clamped(first, m_text.size()));
}

CString CString::Mid(int first, int count) const
{
    return View().substr(Clamped(first, m_text.size()), Clamped(count, m_text.size()));
}

CString CString::Right(int count) const
{
    return View().substr(m_text.size() - Clamped(count, m_text.size()));
}

int CString::Find(wchar_t ch, int start) const noexcept
{
    return start < 0 ? -1 : Position(m_text.find(ch, static_cast<std::size_t>(start)));
}

int CString::Find(LPCWSTR text, int start) const noexcept
{
    return start < 0 ? -1 : Position(View().find(ViewOf(text), static_cast<std::size_t>(start)));
}

int CString::ReverseFind(wchar_t ch) const noexcept
{
    return Position(m_text.rfind(ch));
}

int CString::Compare(LPCWSTR text) const noexcept
{
    return View().compare(ViewOf(text));
}

int CString::CompareNoCase(LPCWSTR text) const noexcept
{
    return wqspcfg::CompareNoCase(View(), ViewOf(text));
}

CString& CString::MakeLower()
{
    std::transform(m_text.begin(), m_text.end(), m_text.begin(), Lower);
    return *this;
}

CString& CString::MakeUpper()
{
    m_text = wqspcfg::UpCase(View());
    return *this;
}

CString& CString::Trim()
{
    return TrimRight().TrimLeft();
}

CString& CString::TrimLeft()
{
    m_text.erase(0, std::min(m_text.find_first_not_of(kBlanks), m_text.size()));
    return *this;
}

CString& CString::TrimRight()
{
    m_text.erase(m_text.find_last_not_of(kBlanks) + 1);
    return *this;
}

CString& CString::Trim(wchar_t ch)
{
    m_text.erase(m_text.find_last_not_of(ch) + 1);
    m_text.erase(0, std::min(m_text.find_first_not_of(ch), m_text.size()));
    return *this;
}

int CString::Replace(wchar_t from, wchar_t to)
{
    const auto count = std::count(m_text.begin(), m_text.end(), from);
    std::replace(m_text.begin(), m_text.end(), from, to);
    return static_cast<int>(count);
}

int CString::Replace(LPCWSTR from, LPCWSTR to)
{
    const std::wstring_view old = ViewOf(from);
    if (old.empty()) {
        return 0;
    }
    std::wstring result;
    int count = 0;
    std::size_t done = 0;
    for (std::size_t at; (at = m_text.find(old, done)) != std::wstring::npos; done = at + old.size()) {
        result.append(m_text, done, at - done).append(ViewOf(to));
        ++count;
    }
    if (count != 0) {
        m_text = std::move(result.append(m_text, done));
    }
    return count;
}

int CString::Remove(wchar_t ch)
{
    return static_cast<int>(std::erase(m_text, ch));
}
