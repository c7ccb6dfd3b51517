// The fields of a card unit, each with the setting that holds it.
#pragma once

#include "wqspcfg/classes/CardUnitEx.h"
#include "wqspcfg/core/settings/Setting.h"

namespace wqspcfg {

// A number or a text of a card unit.
struct CardUnitField
{
    Setting row;
    const wchar_t* column; // of the log's table
    DWORD (*number)(const tagCardUnitEx&) = nullptr;
    void (*setNumber)(tagCardUnitEx&, DWORD) = nullptr;
    bool writtenAgain = false; // once more after the next number
    const char* (*text)(const tagCardUnitEx&) = nullptr;
    void (tagCardUnitEx::*setText)(const char*) = nullptr;

    constexpr CardUnitField(const wchar_t* name, const wchar_t* meaning, DWORD (*get)(const tagCardUnitEx&),
                            void (*set)(tagCardUnitEx&, DWORD), bool isWord, bool again = false)
        : row(kKey, name, DwordValue, 0, meaning, NotLogged, Saved), column(name), number(get), setNumber(set),
          writtenAgain(again)
    {
        if (isWord) {
            row.flags |= static_cast<std::uint32_t>(Flags::AsWord);
        }
    }
    constexpr CardUnitField(const wchar_t* name, const wchar_t* meaning, const char* (*get)(const tagCardUnitEx&),
                            void (tagCardUnitEx::*set)(const char*), const wchar_t* heading = nullptr)
        : row(kKey, name, StringValue, L"", meaning, NotLogged, Saved), column(heading != nullptr ? heading : name),
          text(get), setText(set)
    {}

    constexpr bool IsText() const { return row.type == Type::String; }

    static constexpr Key kKey = key::Below(L"CardUnit\\%s");
};

// Members of a packed record have no references; a number keeps the bits that its field has.
#define WQSPCFG_NUMBER(field)                                                                                          \
    [](const tagCardUnitEx& unit) { return static_cast<DWORD>(unit.field); },                                          \
        [](tagCardUnitEx& unit, DWORD value) { unit.field = static_cast<decltype(unit.field)>(value); },               \
        sizeof(tagCardUnitEx::field) == sizeof(WORD)
#define WQSPCFG_TEXT(field, set)                                                                                       \
    [](const tagCardUnitEx& unit) -> const char* { return unit.field; }, &tagCardUnitEx::set

// clang-format off
inline constexpr CardUnitField kCardUnitFields[] = {
    {L"Number",         L"logical number; a unit without one is not loaded", WQSPCFG_NUMBER(usNumber)},
    {L"CardName",       L"card type name held in the unit",     WQSPCFG_TEXT(lpszCardName, SetCardName), L"Name"},
    {L"Type",           L"XFS unit type, supply or retain bin", WQSPCFG_NUMBER(usType)},
    {L"InitialCount",   L"count at the last replenishment",     WQSPCFG_NUMBER(ulInitialCount)},
    {L"Count",          L"current count",                       WQSPCFG_NUMBER(ulCount)},
    {L"RetainCount",    L"cards retained into this unit",       WQSPCFG_NUMBER(ulRetainCount)},
    {L"Threshold",      L"threshold for the threshold event",   WQSPCFG_NUMBER(ulThreshold)},
    {L"Status",         L"XFS unit status",                     WQSPCFG_NUMBER(usStatus),                true},
    {L"HardwareSensor", L"the unit has a hardware fill sensor: 0 no; nonzero yes", WQSPCFG_NUMBER(bHardwareSensor)},
    {L"MaxCount",       L"upper count limit of the unit",       WQSPCFG_NUMBER(ulMaxCount)},
    {L"MinCount",       L"lower count limit of the unit",       WQSPCFG_NUMBER(ulMinCount)},
    {L"Hopper",         L"hopper designation of the unit",      WQSPCFG_TEXT(lpszHopper, SetHopper)},
};
// clang-format on

#undef WQSPCFG_NUMBER
#undef WQSPCFG_TEXT

// The registry's order: numbers first.
template <class Visit>
constexpr void ForEachStoredField(Visit visit)
{
    for (const bool text : {false, true}) {
        for (const auto& field : kCardUnitFields) {
            if (field.IsText() == text) {
                visit(field);
            }
        }
    }
}

} // namespace wqspcfg
