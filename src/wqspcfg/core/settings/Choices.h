// Allowed values with their words, as a meaning lists them behind a colon: "card when the SP closes: 0 eject; 1
// retain". The list stands once, in the text that the line and the reference show; tools take numbers and words from
// it.
#pragma once

#include "wqspcfg/platform/base/WinTypes.h"

#include <cstddef>
#include <string_view>

namespace wqspcfg {

namespace choices {

// Where `part` begins in `text`, or npos. GCC 12 does not take the standard one for constant where the
// undefined-behaviour sanitizer watches.
constexpr std::size_t Find(std::wstring_view text, std::wstring_view part)
{
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text.substr(at).starts_with(part)) {
            return at;
        }
    }
    return std::wstring_view::npos;
}

constexpr bool TakeText(std::wstring_view& text, std::wstring_view expected)
{
    if (!text.starts_with(expected)) {
        return false;
    }
    text.remove_prefix(expected.size());
    return true;
}

constexpr int DigitOf(wchar_t character, DWORD base)
{
    const int digit = character >= L'0' && character <= L'9'   ? character - L'0'
                      : character >= L'a' && character <= L'f' ? character - L'a' + 10
                      : character >= L'A' && character <= L'F' ? character - L'A' + 10
                                                               : -1;
    return digit < static_cast<int>(base) ? digit : -1;
}

constexpr bool TakeNumber(std::wstring_view& text, DWORD& number)
{
    const DWORD base = TakeText(text, L"0x") ? 16 : 10;
    bool any = false;
    number = 0;
    for (; !text.empty() && DigitOf(text.front(), base) >= 0; text.remove_prefix(1)) {
        number = number * base + static_cast<DWORD>(DigitOf(text.front(), base));
        any = true;
    }
    return any && (text.empty() || text.front() == L' ' || text.front() == L',' || text.front() == L';');
}

// A number, or a few of them: "2 to 7".
constexpr bool TakeNumbers(std::wstring_view& text, DWORD& first, DWORD& last)
{
    constexpr DWORD kMost = 256;
    if (!TakeNumber(text, first)) {
        return false;
    }
    std::wstring_view rest = text;
    if (TakeText(rest, L" to ") && TakeNumber(rest, last) && last > first && last - first < kMost) {
        text = rest;
    } else {
        last = first;
    }
    return true;
}

constexpr bool TakeSeparator(std::wstring_view& text)
{
    return TakeText(text, L", ") || TakeText(text, L" or ") || TakeText(text, L" and ");
}

// The numbers at the beginning of an item, such as "2 and 3" or "0, 2 to 7 or 100", each with the words that follow
// them.
template <class F>
constexpr bool VisitItem(std::wstring_view item, F visit)
{
    DWORD first = 0;
    DWORD last = 0;
    std::wstring_view words = item;
    if (!TakeNumbers(words, first, last)) {
        return false;
    }
    for (std::wstring_view next = words; TakeSeparator(next) && TakeNumbers(next, first, last);) {
        words = next;
    }
    const std::wstring_view numbers = item.substr(0, item.size() - words.size());
    TakeText(words, L" ");
    for (std::wstring_view rest = numbers; TakeNumbers(rest, first, last) && (TakeSeparator(rest) || rest.empty());) {
        for (DWORD number = first;; ++number) {
            visit(number, words);
            if (number == last) {
                break;
            }
        }
    }
    return true;
}

template <class F>
constexpr bool VisitList(std::wstring_view list, F visit)
{
    while (true) {
        const auto end = Find(list, L"; ");
        if (!VisitItem(list.substr(0, end), visit)) {
            return false;
        }
        if (end == std::wstring_view::npos) {
            return true;
        }
        list.remove_prefix(end + 2);
    }
}

} // namespace choices

// Calls `visit(DWORD value, std::wstring_view word)` for each allowed value in the order of the text. False, with no
// call, when the meaning is no such list and does not end in one.
template <class F>
constexpr bool ForEachChoice(std::wstring_view meaning, F visit)
{
    for (std::wstring_view list = meaning;;) {
        if (choices::VisitList(list, [](DWORD, std::wstring_view) {})) {
            return choices::VisitList(list, visit);
        }
        const auto colon = choices::Find(list, L": ");
        if (colon == std::wstring_view::npos) {
            return false;
        }
        list.remove_prefix(colon + 2);
    }
}

} // namespace wqspcfg
