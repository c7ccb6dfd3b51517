// The fields of a card unit, each with the registry value that holds it.
#pragma once

#include "wqspcfg/classes/CardUnitEx.h"

namespace wqspcfg {

// A number or a text of a card unit.
struct CardUnitField
{
    const wchar_t* name; // of the value and of the column in the log's table
    const wchar_t* meaning;
    DWORD (*number)(const tagCardUnitEx&);
    void (*setNumber)(tagCardUnitEx&, DWORD);
    bool writtenAgain = false;                           // once more after the next number
    const char* (*text)(const tagCardUnitEx&) = nullptr; // set where the field is a text
    void (tagCardUnitEx::*setText)(const char*) = nullptr;
    const wchar_t* column = name;

    constexpr bool IsText() const { return text != nullptr; }
};

// Members of a packed record have no references; a number keeps the bits that its field has.
#define WQSPCFG_NUMBER(field)                                                                                          \
    [](const tagCardUnitEx& unit) { return static_cast<DWORD>(unit.field); },                                          \
        [](tagCardUnitEx& unit, DWORD value) { unit.field = static_cast<decltype(unit.field)>(value); }
#define WQSPCFG_TEXT(field, set)                                                                                       \
    nullptr, nullptr, false, [](const tagCardUnitEx& unit) -> const char* { return unit.field; }, &tagCardUnitEx::set

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
