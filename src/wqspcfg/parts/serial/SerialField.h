// The values of the serial-number records, each declared once: its name, default and meaning, and how it is logged.
#pragma once

#include "wqspcfg/platform/base/WinTypes.h"
#include "wqspcfg/platform/framework/FrameworkTypes.h"
#include "wqspcfg/platform/store/KeyHandle.h"

#include <array>
#include <span>
#include <string_view>
#include <type_traits>

namespace wqspcfg {

template <class Record>
struct SerialField
{
    const wchar_t* name = L"";
    const wchar_t* meaning = L"";
    DWORD Record::*number = nullptr; // one of the three
    bool Record::*flag = nullptr;
    CString Record::*text = nullptr;
    DWORD fallback = 0;
    const wchar_t* fallbackText = L"";
    const wchar_t* conversion = nullptr; // of its line, where that is not %d or %s
    DWORD low = 0;                       // a number out of low..high becomes the default; both 0: every number
    DWORD high = 0;
    const wchar_t* lowWord = nullptr; // two lines, one for each word, with these meanings
    const wchar_t* highWord = nullptr;

    constexpr SerialField(const wchar_t* n, DWORD Record::*m, DWORD standard, const wchar_t* told)
        : name(n), meaning(told), number(m), fallback(standard)
    {}
    constexpr SerialField(const wchar_t* n, bool Record::*m, DWORD standard, const wchar_t* told)
        : name(n), meaning(told), flag(m), fallback(standard)
    {}
    constexpr SerialField(const wchar_t* n, CString Record::*m, const wchar_t* standard, const wchar_t* told)
        : name(n), meaning(told), text(m), fallbackText(standard)
    {}

    constexpr SerialField Within(DWORD from, DWORD to) const
    {
        auto field = *this;
        field.low = from;
        field.high = to;
        return field;
    }
    constexpr SerialField Shown(const wchar_t* as) const
    {
        auto field = *this;
        field.conversion = as;
        return field;
    }
    constexpr SerialField ShownByWords(const wchar_t* lowMeaning, const wchar_t* highMeaning) const
    {
        auto field = *this;
        field.lowWord = lowMeaning;
        field.highWord = highMeaning;
        return field;
    }
};

template <class Record>
void SetDefaults(Record& record, std::span<const std::type_identity_t<SerialField<Record>>> fields)
{
    for (const auto& field : fields) {
        if (field.number != nullptr) {
            record.*field.number = field.fallback;
        } else if (field.flag != nullptr) {
            record.*field.flag = field.fallback != 0;
        } else {
            record.*field.text = field.fallbackText;
        }
    }
}

template <class Record>
void LoadFields(KeyReader& reader, Record& record, std::span<const std::type_identity_t<SerialField<Record>>> fields)
{
    SetDefaults(record, fields);
    for (const auto& field : fields) {
        if (field.text != nullptr) {
            reader.Query(field.name, record.*field.text);
            continue;
        }
        DWORD number = field.fallback;
        reader.Query(field.name, number);
        if (field.high != 0 && (number < field.low || number > field.high)) {
            number = field.fallback;
        }
        if (field.flag != nullptr) {
            record.*field.flag = number != 0;
        } else {
            record.*field.number = number;
        }
    }
}

template <class Record>
void SaveFields(KeyWriter& writer, const Record& record,
                std::span<const std::type_identity_t<SerialField<Record>>> fields)
{
    for (const auto& field : fields) {
        if (field.text != nullptr) {
            writer.Set(field.name, record.*field.text);
        } else if (field.flag != nullptr) {
            writer.Set(field.name, record.*field.flag ? DWORD{1} : DWORD{0});
        } else {
            writer.Set(field.name, record.*field.number);
        }
    }
}

} // namespace wqspcfg
